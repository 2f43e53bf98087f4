#include "brantexport/lines.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "brantexport/entries.h"
#include "brantexport/output.h"
#include "brantexport/time.h"
#include "cli/misc-commands/event_log.h"

namespace {

class LinesWriter : public EntryWriter {
  public:
    LinesWriter(int output, const EventFilter& filter) : output_(output), filter_(filter) {}
    bool NeedsEventTexts() const override { return true; }
    void Finish() override { WriteOutput(output_, lines_); }

  private:
    void Take(std::string_view path, const Entry& entry) override;
    bool Passes(const Entry& event) const;
    void AddLine(const Entry& event);

    int output_;
    EventFilter filter_;
    std::string lines_;
};

bool LinesWriter::Passes(const Entry& event) const {
    const Value time = event["last_time"];
    if (time.kind == Value::Kind::Time && time.number < filter_.since) return false;
    const auto& severities = filter_.severities;
    return severities.empty() ||
           std::find(severities.begin(), severities.end(), event["severity"].text) != severities.end();
}

void LinesWriter::AddLine(const Entry& event) {
    const Value value = event["last_time"];
    std::string time = "-";
    if (value.kind == Value::Kind::Time) AssignTime(value.number, time);
    std::string text(event["text"].text);
    ReplaceUnprintable(text.data());
    lines_.append(time).append(" ").append(event["severity"].text).append(" ");
    lines_.append(event["class_name"].text).append(": ").append(text) += '\n';
}

void LinesWriter::Take(std::string_view path, const Entry& entry) {
    constexpr size_t kFullBuffer = 16384;
    if (path == "errors") std::fprintf(stderr, "brantexport: %s\n", entry["message"].text.data());
    if (path != "events" || !Passes(entry)) return;
    AddLine(entry);
    if (lines_.size() < kFullBuffer) return;
    WriteOutput(output_, lines_);
    lines_.clear();
}

}  // namespace

std::unique_ptr<Writer> NewLinesWriter(int output, const EventFilter& filter) {
    return std::make_unique<LinesWriter>(output, filter);
}
