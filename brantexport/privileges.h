// Gives up root.
#pragma once

// Changes the process to a user and the user's group for good, without supplementary groups, and checks that
// the process can't become root again. If the process isn't root, only checks that. Returns null, or the
// reason of a failure; the process must then end, because it may still be root.
[[nodiscard]] const char* DropRoot(const char* user_name);

// Closes all descriptors except the standard streams and `kept`: libraries keep some open that root has
// opened.
void CloseOtherDescriptors(int kept);
