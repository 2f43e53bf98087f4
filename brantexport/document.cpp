#include "brantexport/document.h"

#include <algorithm>
#include <cstdint>

#include "src/utils/utc.h"
#include "src/utils/version.h"

namespace {

// The version of the document's format. Increase it, also in docs/brantexport.schema.json, if a change could
// break programs that read the document: if a member is renamed or removed or its values change.
constexpr int kSchemaVersion = 1;

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
    writer.Add("exported_at", Text(UtcText(start / 1000)));
    for (const Section& section : sections) {
        errors.Begin(section.name);
        writer.Key(section.name);
        section.write(writer, errors);
    }
    writer.Key("errors");
    WriteErrors(writer, errors);
    writer.Add("duration_ms", std::max(Milliseconds() - start, int64_t{0}));  // the clock may be set back
    writer.EndObject();
    writer.Finish();
}
