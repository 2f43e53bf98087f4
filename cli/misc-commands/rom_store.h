// The store of ROM environment variables, by name, over the crom device.
#pragma once

// Reads a variable. ev_name_string: at most 255 characters. return_buffer: length bytes, at most 256; left
// as it was on failure. Result: 0, or 1 on failure. Prints nothing.
int get_ev(const char* ev_name_string, unsigned char* return_buffer, int length);

// Writes the first length bytes of a variable, at most 256. Result: 0, or 1 on failure. Prints nothing.
int set_ev(const char* ev_name_string, const unsigned char* buffer, int length);
