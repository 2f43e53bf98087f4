// How long a user waits: for a command from a script, for a listing of the event log, for a key.
#include <benchmark/benchmark.h>

#include <cstring>

#include "cli/brantcli/command_table.h"
#include "cli/eventstr/eventstr.h"
#include "cli/parse/completion.h"
#include "tests/support/test_machine.h"
#include "tools/mkmachine/events.h"
#include "tools/mkmachine/models.h"

namespace {

using benchmark::State;

// Runs a script from start to end. input: what is typed meanwhile.
void Run(State& state, const TestMachine& machine, const char* script, const char* input = "") {
    for (auto _ : state) {
        RunOptions options;
        options.input = input;
        if (machine.Script(script, options).status != 0) state.SkipWithError("the command failed");
    }
}

void Script(State& state, const char* model, const char* script) {
    const TestMachine machine(model);
    Run(state, machine, script);
}
BENCHMARK_CAPTURE(Script, help, "tr500k2", "HELP")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Script, fans, "tr500k2", "SHOW FANS")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Script, inventory, "tr500k2", "SHOW SERVER")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Script, change, "tr500k2", "SET NAME BRANT")->Unit(benchmark::kMillisecond)->UseRealTime();

// The whole event log. An entry must not cost more in a long one.
void Listing(State& state) {
    TestMachine machine("tr500k2");
    const auto entries = static_cast<size_t>(state.range(0));
    machine.Write("cevt/hlog", EventLog(entries));
    Run(state, machine, "SHOW HLOG", "c");
    state.counters["entry"] =
        benchmark::Counter(static_cast<double>(entries),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(Listing)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond)->UseRealTime();

// An event, as a line of English.
void Translation(State& state) {
    std::vector<std::string> entries;
    for (const SampleEvent& event : EveryEvent()) {
        EVT_HEADER header = EventHeader(1, event.severity, event.event_class, event.code);
        entries.push_back(EventEntry(header, event.payload));
    }
    size_t next = 0;
    for (auto _ : state) {
        char text[256];
        std::string& entry = entries[next++ % entries.size()];
        TranslateEventLogMessage(reinterpret_cast<PEVT_LOG_ENTRY>(entry.data()), text, sizeof text);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(Translation);

// The TAB key.
void Completion(State& state) {
    CreateCommands();
    for (auto _ : state) {
        char line[kLineSize] = "set serial emb";
        TabComplete(line);
        benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(Completion);

}  // namespace

BENCHMARK_MAIN();
