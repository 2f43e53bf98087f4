// The command handlers that have no module of their own, by family. Each takes the tokenized line, checks
// those of its words that it reads, prints its own messages, and returns 0 for success or 1 for failure.
#pragma once

#include "cli/command/command.h"

// Leaving the shell. Never returns; the argument is ignored and may be null.
int do_exit(InputLineType* InputLine);

// Power supplies, the unit identification light, memory modules.
int do_show_powersupply(InputLineType* InputLine);
int do_show_uid(InputLineType* InputLine);
int do_set_uid(InputLineType* InputLine);
int do_show_dimm(InputLineType* InputLine);

// The automatic server recovery timer.
int do_show_asr(InputLineType* InputLine);
int do_set_asr(InputLineType* InputLine);
int do_enable_asr(InputLineType* InputLine);
int do_disable_asr(InputLineType* InputLine);

// Asset text, server name, environment-abnormality automatic shutdown.
int do_show_asset(InputLineType* InputLine);
int do_set_asset(InputLineType* InputLine);
int do_show_name(InputLineType* InputLine);
int do_set_name(InputLineType* InputLine);
int do_show_eaas(InputLineType* InputLine);
int do_enable_eaas(InputLineType* InputLine);
int do_disable_eaas(InputLineType* InputLine);

// Boot devices and boot order.
int do_show_boot(InputLineType* InputLine);
int do_set_boot_once(InputLineType* InputLine);
int do_set_boot_first(InputLineType* InputLine);
int do_show_ipl(InputLineType* InputLine);

// Embedded NICs and Wake-On-Lan.
int do_show_nic(InputLineType* InputLine);
int do_enable_nic_pxe(InputLineType* InputLine);
int do_disable_nic_pxe(InputLineType* InputLine);
int do_enable_nic_iscsi(InputLineType* InputLine);
int do_disable_nic_iscsi(InputLineType* InputLine);
int do_show_wol(InputLineType* InputLine);
int do_enable_disable_wol(InputLineType* InputLine);

// Serial ports.
int do_show_bios_serial_port(InputLineType* InputLine);
int do_set_bios_serial_port(InputLineType* InputLine);
int do_show_embedded_serial_port(InputLineType* InputLine);
int do_set_embedded_serial_port(InputLineType* InputLine);
int do_show_vsp(InputLineType* InputLine);
int do_set_virtual_serial_port(InputLineType* InputLine);

// The POST F1 prompt, hyper-threading, firmware versions.
int do_show_f1(InputLineType* InputLine);
int do_set_f1(InputLineType* InputLine);
int do_show_ht(InputLineType* InputLine);
int do_enable_disable_ht(InputLineType* InputLine);
int do_show_versions(InputLineType* InputLine);

// The event log.
int do_show_hlog(InputLineType* InputLine);
int do_clear_hlog(InputLineType* InputLine);
