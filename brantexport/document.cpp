#include "brantexport/document.h"

#include <cstdint>

#include "brantexport/time.h"
#include "src/utils/version.h"

namespace {

// The version of the document's format. Increase it, also in docs/brantexport.schema.json, if a change could
// break programs that read the document: if a member is renamed or removed or its values change.
constexpr int kSchemaVersion = 1;

// Returns the time in UTC, such as "2026-11-25T12:30:00Z".
std::string UtcText(int64_t milliseconds) {
    const int64_t seconds = milliseconds / 1000;
    std::string text;
    AssignTime(UtcTime(static_cast<time_t>(seconds)), text);
    const std::string second = std::to_string(100 + seconds % 60).substr(1);  // two digits
    return text + ':' + second + 'Z';
}

void WriteErrors(Writer& writer, const Errors& errors) {
    writer.BeginList();
    for (const Errors::Error& error : errors.List()) {
        writer.BeginObject();
        writer.Add("section", Text(error.section));
        writer.Add("message", Text(error.message));
        writer.EndObject();
    }
    writer.EndList();
}

}  // namespace

void WriteDocument(Writer& writer, const std::vector<Section>& sections, Errors& errors) {
    const int64_t start = Milliseconds();
    writer.BeginObject();
    writer.Add("schema_version", kSchemaVersion);
    writer.Add("version", Text(kVersion));
    writer.Add("exported_at", Text(UtcText(start)));
    for (const Section& section : sections) {
        errors.Begin(section.name);
        writer.Key(section.name);
        section.write(writer, errors);
    }
    writer.Key("errors");
    WriteErrors(writer, errors);
    writer.Add("duration_ms", Milliseconds() - start);
    writer.EndObject();
    writer.Finish();
}
