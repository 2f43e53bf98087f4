// The health driver's four devices, open from start-up to the end of the run.
#pragma once

extern int cdt_fd;   // data tables
extern int cevt_fd;  // the event log
extern int casr_fd;  // the automatic server recovery timer
extern int crom_fd;  // ROM variables

extern char cdt_path[19];
extern char cevt_path[20];
extern char casr_path[20];
extern char crom_path[20];
