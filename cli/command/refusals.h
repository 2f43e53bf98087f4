// What command handlers say in the same way. The refusals return 1, the result of a command that failed, so
// that a handler can refuse in one line.
#pragma once

// "Invalid argument(s)" and the current command's help text.
int InvalidArguments();

// The current command's help text alone: a command given without its value.
int ShowUsage();

// A message of the handler's own, as printf prints it.
__attribute__((format(printf, 1, 2))) int Fail(const char* format, ...);

constexpr const char* YesNo(bool yes) {
    return yes ? "Yes" : "No";
}

constexpr const char* EnabledOrDisabled(bool enabled) {
    return enabled ? "enabled" : "disabled";
}
