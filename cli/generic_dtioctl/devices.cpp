#include "cli/generic_dtioctl/devices.h"

int cdt_fd = -1;
int cevt_fd = -1;
int casr_fd = -1;
int crom_fd = -1;

char cdt_path[19] = "/dev/zethealth/cdt";
char cevt_path[20] = "/dev/zethealth/cevt";
char casr_path[20] = "/dev/zethealth/casr";
char crom_path[20] = "/dev/zethealth/crom";
