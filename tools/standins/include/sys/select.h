// The server's FD_ZERO is a call of memset, which whoever uses it has to declare.
#ifndef BRANT_STANDIN_SELECT_H
#define BRANT_STANDIN_SELECT_H
#include_next <sys/select.h>
#undef FD_ZERO
#define FD_ZERO(set) memset(set, 0, sizeof *(set))
#endif
