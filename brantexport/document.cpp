#include "brantexport/document.h"

void WriteDocument(Writer& writer, const std::vector<Section>& sections, Errors& errors) {
    writer.BeginObject();
    for (const Section& section : sections) {
        errors.Begin(section.name);
        writer.Key(section.name);
        section.write(writer, errors);
    }
    writer.Key("errors");
    writer.BeginList();
    for (const Errors::Error& error : errors.List()) {
        writer.BeginObject();
        writer.Add("section", Text(error.section));
        writer.Add("message", Text(error.message));
        writer.EndObject();
    }
    writer.EndList();
    writer.EndObject();
    writer.Finish();
}
