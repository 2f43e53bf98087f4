// On the server, FD_ZERO calls memset(). This header does the same, so that tools/check detects a source file
// that uses FD_ZERO without including <cstring>.
#ifndef BRANT_STUB_SELECT_H
#define BRANT_STUB_SELECT_H
#include_next <sys/select.h>
#undef FD_ZERO
#define FD_ZERO(set) memset(set, 0, sizeof *(set))
#endif
