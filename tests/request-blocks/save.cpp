// The whole program savemachine, as a function that runs with this test program's request library.
#define main SaveMachine
#include "savemachine/main.cpp"
