// The table of all commands, and its compile-time constraints.
#include "cli/brantcli/command_table.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "cli/fan/fan.h"
#include "cli/misc-commands/asr.h"
#include "cli/misc-commands/asset_name.h"
#include "cli/misc-commands/boot.h"
#include "cli/misc-commands/dimm.h"
#include "cli/misc-commands/event_log.h"
#include "cli/misc-commands/exit.h"
#include "cli/misc-commands/nic.h"
#include "cli/misc-commands/power_supply.h"
#include "cli/misc-commands/serial_bios.h"
#include "cli/misc-commands/serial_ports.h"
#include "cli/misc-commands/switches.h"
#include "cli/misc-commands/uid.h"
#include "cli/misc-commands/versions.h"
#include "cli/parse/command_tree.h"
#include "cli/parse/help.h"
#include "cli/smbios-commands/inventory.h"
#include "cli/smbios-commands/port_map.h"
#include "cli/temp/temp.h"

namespace {

// In each help text, the part between "USAGE:" and the next ':' is the usage, which the parent command
// prints.
constexpr char HelpHelp[] =
    "USAGE: HELP <command>: Show help messages for <command> or list the toplevel\ncommands if no "
    "arguments are provided.";
constexpr char HelpClear[] = "USAGE: CLEAR [ HLOG ]";
constexpr char HelpClearHlog[] = "USAGE: CLEAR HLOG: Clears the HLOG log.";
constexpr char HelpExit[] = "USAGE: EXIT: Exit brantcli.";
constexpr char HelpQuit[] = "USAGE: QUIT: Exit brantcli.";
constexpr char HelpDisable[] = "USAGE: DISABLE [ ASR | EAAS | HT | PXE | ISCSI | WOL ]";
constexpr char HelpDisableAsr[] = "USAGE: DISABLE ASR: Disables the ASR timer.";
constexpr char HelpDisableEaas[] =
    "USAGE: DISABLE EAAS: Disables EAAS (Environment Abnormality Auto Shutdown).";
constexpr char HelpDisableHT[] = "USAGE: DISABLE HT: Disables processor hyper-threading.";
constexpr char HelpDisableiSCSI[] =
    "USAGE: DISABLE ISCSI [ NIC1 | NIC2 | NIC3 | NIC4 | NIC5 ]: Disables iSCSI support on the embedded "
    "NICs";
constexpr char HelpDisablePxe[] =
    "USAGE: DISABLE PXE [ NIC1 | NIC2 | NIC3 | NIC4 | NIC5 ]: Disables PXE support on the embedded NICs";
constexpr char HelpDisableWol[] = "USAGE: DISABLE WOL: Disables Wake-On-Lan support.";
constexpr char HelpEnable[] = "USAGE: ENABLE [ ASR | EAAS | HT | PXE | ISCSI | WOL]";
constexpr char HelpEnableAsr[] = "USAGE: ENABLE ASR: Enables the ASR timer.";
constexpr char HelpEnableEaas[] = "USAGE: ENABLE EAAS: Enables EAAS (Environment Abnormality Auto Shutdown).";
constexpr char HelpEnableHT[] = "USAGE: ENABLE HT: Enables processor hyper-threading.";
constexpr char HelpEnableiSCSI[] =
    "USAGE: ENABLE ISCSI [ NIC1 | NIC2 | NIC3 | NIC4 | NIC5 ]: Enables iSCSI support on the embedded "
    "NICs.";
constexpr char HelpEnablePxe[] =
    "USAGE: ENABLE PXE [ NIC1 | NIC2 | NIC3 | NIC4 | NIC5 ]: Enables PXE support on the embedded NICs.";
constexpr char HelpEnableWol[] = "USAGE: ENABLE WOL: Enables Wake-On-Lan support.";
constexpr char HelpSet[] = "USAGE: SET [ ASR | ASSET | BOOT | F1 | NAME | SERIAL | UID ]";
constexpr char HelpSetAsr[] =
    "USAGE: SET ASR <timeout>: Sets the ASR timeout value in minutes. Timeout must be 5, 10, 15, 20 or "
    "30 minutes.";
constexpr char HelpSetAsset[] = "USAGE: SET ASSET <text>: Sets the Asset Text value.";
constexpr char HelpSetBoot[] = "USAGE: SET BOOT [ FIRST | ONCE ]";
constexpr char HelpSetBootFirst[] =
    "USAGE: SET BOOT FIRST [ CDROM | FLOPPY | HDD | PXE | USBKEY ]: Sets the first boot device.";
constexpr char HelpSetBootOnce[] =
    "USAGE: SET BOOT ONCE [ CDROM | FLOPPY | HDD | PXE | KONF ]: Sets the next boot device.";
constexpr char HelpSetF1[] =
    "USAGE: SET F1 [ ENABLED | DELAYED | DISABLED ]: Sets the POST F1 prompt configuration.";
constexpr char HelpSetName[] =
    "USAGE: SET NAME <string>: Sets the server name to <string>. <string> must be 28 characters or "
    "less.";
constexpr char HelpSetSerial[] = "USAGE: SET SERIAL [ BIOS | EMBEDDED | VIRTUAL ]";
constexpr char HelpSetSerialBios[] =
    "USAGE: SET SERIAL BIOS [ COM1 BAUD | COM2 BAUD | DISABLED ]: Sets the BIOS serial port to COM1, "
    "COM2 or DISABLED.";
constexpr char HelpSetSerialEmbedded[] = "USAGE: SET SERIAL EMBEDDED [ PORTA | PORTB ].";
constexpr char HelpSetSerialEmbeddedPortA[] =
    "USAGE: SET SERIAL EMBEDDED PORTA [ COM1 | COM2 | COM3 | COM4 | DISABLED ]: Sets the embedded "
    "serial port A to COM1, COM2, COM3, COM4 or DISABLED.";
constexpr char HelpSetSerialEmbeddedPortB[] =
    "USAGE: SET SERIAL EMBEDDED PORTB [ COM1 | COM2 | COM3 | COM4 | DISABLED ]: Sets the embedded "
    "serial port B to COM1, COM2, COM3, COM4 or DISABLED.";
constexpr char HelpSetSerialVirtual[] =
    "USAGE: SET SERIAL VIRTUAL [ COM1 | COM2 | DISABLED ]: Sets the Virtual serial port to COM1, COM2 "
    "or DISABLED.";
constexpr char HelpSetUid[] = "USAGE: SET UID [ ON | OFF ]: Turns the server UID on or off.";
constexpr char HelpSetUidOff[] = "USAGE: SET UID OFF: Turns the server UID off.";
constexpr char HelpSetUidOn[] = "USAGE: SET UID ON: Turns the server UID on.";
constexpr char HelpShow[] =
    "USAGE: SHOW [ ASR | ASSET | BOOT | DIMM | EAAS | F1 | FANS | HT | HLOG | IPL | POWERSUPPLY | NAME "
    "| NIC | PORTMAP | SERIAL | SERVER | TEMP | UID | WOL | VERSIONS ]";
constexpr char HelpShowASR[] = "USAGE: SHOW ASR: Shows the state of the ASR timer.";
constexpr char HelpShowAsset[] = "USAGE: SHOW ASSET: Shows the asset tag.";
constexpr char HelpShowBoot[] = "USAGE: SHOW BOOT: Shows boot devices.";
constexpr char HelpShowDimm[] = "USAGE: SHOW DIMM: Shows info on DIMM sockets.";
constexpr char HelpShowEaas[] =
    "USAGE: SHOW EAAS: Shows the state of EAAS (Environment Abnormality Auto Shutdown).";
constexpr char HelpShowF1[] = "USAGE: SHOW F1: Shows the POST F1 status.";
constexpr char HelpShowFans[] = "USAGE: SHOW FANS: Shows info on installed fans.";
constexpr char HelpShowHlog[] = "USAGE: SHOW HLOG: Shows the HLOG log.";
constexpr char HelpShowHT[] = "USAGE: SHOW HT: Shows state of processor hyperthreading.";
constexpr char HelpShowIpl[] = "USAGE: SHOW IPL: Shows the current device boot order.";
constexpr char HelpShowName[] = "USAGE: SHOW NAME: Shows the server name.";
constexpr char HelpShowNIC[] = "USAGE: SHOW NIC: Shows the NIC boot state.";
constexpr char HelpShowPortMap[] = "USAGE: SHOW PORTMAP: Shows NIC port MappingNIC port Mapping information.";
constexpr char HelpShowPS[] = "USAGE: SHOW POWERSUPPLY: Shows info on powersupplies.";
constexpr char HelpShowSerial[] = "USAGE: SHOW SERIAL [ BIOS | EMBEDDED | VIRTUAL ]";
constexpr char HelpShowBiosSerial[] = "USAGE: SHOW SERIAL BIOS: Shows the BIOS serial port status.";
constexpr char HelpShowEmbeddedSerial[] =
    "USAGE: SHOW SERIAL EMBEDDED: Shows the embedded serial port status.";
constexpr char HelpShowVsp[] = "USAGE: SHOW SERIAL VIRTUAL: Shows the Virtual Serial Port status.";
constexpr char HelpShowServer[] = "USAGE: SHOW SERVER: Shows server information.";
constexpr char HelpShowTemp[] = "USAGE: SHOW TEMP: Shows current temperature readings.";
constexpr char HelpShowUID[] = "USAGE: SHOW UID: Shows the UID state.";
constexpr char HelpShowVers[] = "USAGE: SHOW VERSIONS: Shows various firmware version numbers.";
constexpr char HelpShowWol[] = "USAGE: SHOW WOL: Shows the Wake-On-Lan status.";

constexpr char HelpRoot[] =
    "\nInvalid or Incomplete Command - No help available. Try using Tab Completion or the HELP command.";

struct CommandRow {
    char path[28];  // the tokens from the top level down, separated by spaces
    const char* help;
    CommandHandler function;           // null for an inner node
    const char* synonym_of = nullptr;  // path of the command that this one is a synonym of, or null
};

// Each parent is above its children, and each command above its synonyms.
// clang-format off
constexpr CommandRow kCommands[] = {
    {"?",                         HelpHelp,                   do_help},
    {"CLEAR",                     HelpClear,                  nullptr},
    {"CLEAR HLOG",                HelpClearHlog,              do_clear_hlog},
    {"EXIT",                      HelpExit,                   do_exit},
    {"HELP",                      HelpHelp,                   do_help},
    {"QUIT",                      HelpQuit,                   do_exit},
    {"DISABLE",                   HelpDisable,                nullptr},
    {"DISABLE ASR",               HelpDisableAsr,             do_disable_asr},
    {"DISABLE EAAS",              HelpDisableEaas,            do_disable_eaas},
    {"DISABLE HT",                HelpDisableHT,              do_enable_disable_ht},
    {"DISABLE ISCSI",             HelpDisableiSCSI,           do_disable_nic_iscsi},
    {"DISABLE PXE",               HelpDisablePxe,             do_disable_nic_pxe},
    {"DISABLE WOL",               HelpDisableWol,             do_enable_disable_wol},
    {"ENABLE",                    HelpEnable,                 nullptr},
    {"ENABLE ASR",                HelpEnableAsr,              do_enable_asr},
    {"ENABLE EAAS",               HelpEnableEaas,             do_enable_eaas},
    {"ENABLE HT",                 HelpEnableHT,               do_enable_disable_ht},
    {"ENABLE ISCSI",              HelpEnableiSCSI,            do_enable_nic_iscsi},
    {"ENABLE PXE",                HelpEnablePxe,              do_enable_nic_pxe},
    {"ENABLE WOL",                HelpEnableWol,              do_enable_disable_wol},
    {"SET",                       HelpSet,                    nullptr},
    {"SET ASR",                   HelpSetAsr,                 do_set_asr},
    {"SET ASSET",                 HelpSetAsset,               do_set_asset},
    {"SET BOOT",                  HelpSetBoot,                nullptr},
    {"SET BOOT FIRST",            HelpSetBootFirst,           do_set_boot_first},
    {"SET BOOT ONCE",             HelpSetBootOnce,            do_set_boot_once},
    {"SET F1",                    HelpSetF1,                  do_set_f1},
    {"SET NAME",                  HelpSetName,                do_set_name},
    {"SET SERIAL",                HelpSetSerial,              nullptr},
    {"SET SERIAL BIOS",           HelpSetSerialBios,          do_set_bios_serial_port},
    {"SET SERIAL EMBEDDED",       HelpSetSerialEmbedded,      nullptr},
    {"SET SERIAL EMBEDDED PORTA", HelpSetSerialEmbeddedPortA, do_set_embedded_serial_port},
    {"SET SERIAL EMBEDDED PORTB", HelpSetSerialEmbeddedPortB, do_set_embedded_serial_port},
    {"SET SERIAL VIRTUAL",        HelpSetSerialVirtual,       do_set_virtual_serial_port},
    {"SET UID",                   HelpSetUid,                 nullptr},
    {"SET UID OFF",               HelpSetUidOff,              do_set_uid},
    {"SET UID ON",                HelpSetUidOn,               do_set_uid},
    {"SHOW",                      HelpShow,                   nullptr},
    {"SHOW ASR",                  HelpShowASR,                do_show_asr},
    {"SHOW ASSET",                HelpShowAsset,              do_show_asset},
    {"SHOW BOOT",                 HelpShowBoot,               do_show_boot},
    {"SHOW DIMM",                 HelpShowDimm,               do_show_dimm},
    {"SHOW EAAS",                 HelpShowEaas,               do_show_eaas},
    {"SHOW F1",                   HelpShowF1,                 do_show_f1},
    {"SHOW FAN",                  HelpShowFans,               do_show_fans},
    {"SHOW FANS",                 HelpShowFans,               do_show_fans, "SHOW FAN"},
    {"SHOW HLOG",                 HelpShowHlog,               do_show_hlog},
    {"SHOW HT",                   HelpShowHT,                 do_show_ht},
    {"SHOW IPL",                  HelpShowIpl,                do_show_ipl},
    {"SHOW NAME",                 HelpShowName,               do_show_name},
    {"SHOW NIC",                  HelpShowNIC,                do_show_nic},
    {"SHOW PORTMAP",              HelpShowPortMap,            do_show_nic_port_mapping},
    {"SHOW POWERSUPPLY",          HelpShowPS,                 do_show_powersupply},
    {"SHOW SERIAL",               HelpShowSerial,             nullptr},
    {"SHOW SERIAL BIOS",          HelpShowBiosSerial,         do_show_bios_serial_port},
    {"SHOW SERIAL EMBEDDED",      HelpShowEmbeddedSerial,     do_show_embedded_serial_port},
    {"SHOW SERIAL VIRTUAL",       HelpShowVsp,                do_show_vsp},
    {"SHOW SERVER",               HelpShowServer,             do_show_server},
    {"SHOW TEMP",                 HelpShowTemp,               do_show_temp},
    {"SHOW UID",                  HelpShowUID,                do_show_uid},
    {"SHOW VERSIONS",             HelpShowVers,               do_show_versions},
    {"SHOW WOL",                  HelpShowWol,                do_show_wol},
};
// clang-format on
constexpr size_t kCommandCount = std::size(kCommands);

// Returns the path without its last token: "" for a top-level command.
constexpr std::string_view ParentOf(std::string_view path) {
    const size_t space = path.rfind(' ');
    return path.substr(0, space != path.npos ? space : 0);
}

constexpr size_t kNoRow = SIZE_MAX;

// Returns the first row with this path, or kNoRow.
constexpr size_t RowOf(std::string_view path) {
    for (size_t row = 0; row < kCommandCount; ++row) {
        if (path == kCommands[row].path) return row;
    }
    return kNoRow;
}

// Returns whether a word of `help` begins with `token`. A prefix is enough, because the help text of SHOW
// contains FANS, not FAN.
constexpr bool Names(std::string_view help, std::string_view token) {
    size_t found = help.find(token);
    while (found != help.npos && (found == 0 || help[found - 1] != ' ')) found = help.find(token, found + 1);
    return found != help.npos;
}

// The constraints on a row. If a row violates one, a static_assert in Accept() fails; the compiler's message
// contains the constraint and the number of the row.
enum class Constraint { None, UsagePrefix, PathOnce, ParentFirst, SynonymFirst, NamedByParent };

struct Violation {
    Constraint constraint;
    size_t row;  // index in kCommands
};

template <Constraint kConstraint, size_t kRow>
constexpr bool Accept() {
    static_assert(kConstraint != Constraint::UsagePrefix, "a help text begins with \"USAGE:\"");
    static_assert(kConstraint != Constraint::PathOnce, "no two rows have the same path");
    static_assert(kConstraint != Constraint::ParentFirst,
                  "the row of a command's parent precedes the command's row");
    static_assert(kConstraint != Constraint::SynonymFirst,
                  "the row of a synonym's command precedes the synonym's row");
    static_assert(kConstraint != Constraint::NamedByParent,
                  "the help text of a command's parent names the command");
    return kConstraint == Constraint::None;
}

// Returns the first constraint that the row violates, or None.
constexpr Constraint ViolatedBy(size_t row) {
    const auto& [path, help, function, synonym_of] = kCommands[row];
    const std::string_view parent = ParentOf(path);
    if (std::string_view(help).substr(0, kUsagePrefix.size()) != kUsagePrefix) return Constraint::UsagePrefix;
    if (RowOf(path) != row) return Constraint::PathOnce;
    if (synonym_of != nullptr && RowOf(synonym_of) >= row) return Constraint::SynonymFirst;
    if (parent.empty()) return Constraint::None;
    if (RowOf(parent) >= row) return Constraint::ParentFirst;
    const std::string_view token = std::string_view(path).substr(parent.size() + 1);
    return Names(kCommands[RowOf(parent)].help, token) ? Constraint::None : Constraint::NamedByParent;
}

constexpr Violation FirstViolation() {
    for (size_t row = 0; row < kCommandCount; ++row) {
        if (ViolatedBy(row) != Constraint::None) return {ViolatedBy(row), row};
    }
    return {Constraint::None, 0};
}
constexpr Violation kViolation = FirstViolation();
static_assert(Accept<kViolation.constraint, kViolation.row>());

// The links of a row's node in the tree.
struct Links {
    size_t parent = kNoRow;      // row of the parent; kNoRow if the parent is the root
    size_t synonym_of = kNoRow;  // row of the command that this one is a synonym of; kNoRow if none
    size_t token = 0;            // offset of the last token in the path
};

constexpr Links LinksOf(const CommandRow& row) {
    const std::string_view parent = ParentOf(row.path);
    return {RowOf(parent), row.synonym_of != nullptr ? RowOf(row.synonym_of) : kNoRow,
            parent.empty() ? 0 : parent.size() + 1};
}

constexpr std::array<Links, kCommandCount> AllLinks() {
    std::array<Links, kCommandCount> links{};
    for (size_t i = 0; i < kCommandCount; ++i) links[i] = LinksOf(kCommands[i]);
    return links;
}

// Computed at compile time: looking the rows up at start-up would add 20 % to the instructions of a run with
// one short command.
constexpr std::array<Links, kCommandCount> kLinks = AllLinks();

}  // namespace

void CreateCommands() {
    Cmds = NewCommandNode("Top Level of Command Tree", nullptr, HelpRoot, nullptr);
    CmdType* nodes[kCommandCount];
    for (size_t i = 0; i < kCommandCount; ++i) {
        const auto& [parent, synonym_of, token] = kLinks[i];
        nodes[i] = AppendCmd(parent != kNoRow ? nodes[parent] : Cmds, kCommands[i].path + token,
                             synonym_of != kNoRow ? nodes[synonym_of] : nullptr, kCommands[i].help,
                             kCommands[i].function);
    }
    PropagateSynonyms(Cmds);
}
