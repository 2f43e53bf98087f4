#include "brantexport/document.h"

#include <sys/time.h>

#include <cstdint>
#include <ctime>

#include "brantexport/time.h"
#include "src/utils/version.h"

namespace {

// The version of the document's form. It changes when a program that reads the document could fail: when a
// member is renamed, removed, or gets other values. docs/brantexport.schema.json contains it, too.
constexpr int kSchemaVersion = 1;

// Returns the milliseconds since 1970.
int64_t Now() {
    timeval now{};
    gettimeofday(&now, nullptr);
    return int64_t{now.tv_sec} * 1000 + now.tv_usec / 1000;
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
    const int64_t start = Now();
    writer.BeginObject();
    writer.Add("schema_version", kSchemaVersion);
    writer.Add("version", Text(kVersion));
    writer.Add("exported_at", Text(UtcText(static_cast<time_t>(start / 1000))));
    for (const Section& section : sections) {
        errors.Begin(section.name);
        writer.Key(section.name);
        section.write(writer, errors);
    }
    writer.Key("errors");
    WriteErrors(writer, errors);
    writer.Add("duration_ms", Now() - start);
    writer.EndObject();
    writer.Finish();
}
