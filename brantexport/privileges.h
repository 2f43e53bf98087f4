// Gives up the rights of root.
#pragma once

// Permanently changes the user and the group of the process to those of `user_name`, removes the
// supplementary groups, and checks that the process can't become root again. If the process isn't root,
// performs only the check. Returns null, or the reason for a failure; the caller must then end the process,
// because it may still be root.
[[nodiscard]] const char* DropRoot(const char* user_name);

// Closes all descriptors except the standard streams and `kept`, because libraries keep descriptors open that
// they opened as root.
void CloseOtherDescriptors(int kept);
