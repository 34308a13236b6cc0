#include "Rows.h"

#include <QGuiApplication>
#include <nlohmann/json.hpp>

#if defined(__GLIBC__)
    #include <malloc.h>
#endif

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

std::vector<Target>& targets() {
    static std::vector<Target> list;
    return list;
}

} // namespace bench

namespace {

struct Case {
    std::vector<std::string> order;
    std::map<std::string, std::vector<double>> seconds;
    bool isBytes = false; ///< "seconds" that a row states itself are gigabytes
};

class Collector : public benchmark::ConsoleReporter {
public:
    void ReportRuns(std::vector<Run> const& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (Run const& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration) {
                continue;
            }
            std::string const name = run.run_name.function_name;
            auto const first = name.find('|');
            auto const second = name.find('|', first + 1);
            if (second == std::string::npos) {
                continue;
            }
            Case& c = cases[{name.substr(0, first), name.substr(first + 1, second - first - 1)}];
            std::string const contestant = name.substr(second + 1);
            if (!c.seconds.contains(contestant)) {
                c.order.push_back(contestant);
            }
            // What other threads do costs the waiting one no time of its own; and what a row states
            // itself, such as bytes, is no processor time.
            std::string const& type = run.run_name.time_type;
            c.isBytes = type.ends_with("manual_time");
            bool const stated = c.isBytes || type.ends_with("real_time");
            c.seconds[contestant].push_back(
                (stated ? run.real_accumulated_time : run.cpu_accumulated_time) /
                static_cast<double>(run.iterations));
        }
    }

    std::map<std::pair<std::string, std::string>, Case> cases;
};

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The medians of each case, and its targets:
/// [{"row", "workload", "isBytes", "seconds": [{"name", "median"}], "targets": [{"against",
/// "workload", "atMost"}]}]; bench/report.py makes tables and pictures of it.
void writeResults(Collector const& collector, std::filesystem::path const& path) {
    auto results = nlohmann::ordered_json::array();
    for (auto const& [key, c] : collector.cases) {
        auto seconds = nlohmann::ordered_json::array();
        for (std::string const& name : c.order) {
            seconds.push_back({{"name", name}, {"median", median(c.seconds.at(name))}});
        }
        auto targets = nlohmann::ordered_json::array();
        for (bench::Target const& t : bench::targets()) {
            if (t.row == key.first && t.workload == key.second) {
                targets.push_back(
                    {{"against", t.against}, {"workload", t.otherWorkload}, {"atMost", t.atMost}});
            }
        }
        results.push_back({{"row", key.first},
                           {"workload", key.second},
                           {"isBytes", c.isBytes},
                           {"seconds", seconds},
                           {"targets", targets}});
    }
    std::ofstream(path) << results.dump(1) << '\n';
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // pictures have texts
    QGuiApplication application(argc, argv);
#if defined(__GLIBC__)
    mallopt(M_TRIM_THRESHOLD, -1); // what a row has freed stays warm for the next
#endif
    std::filesystem::path results;
    std::vector<char*> rest;
    for (int i = 0; i < argc; ++i) {
        constexpr std::string_view option = "--results=";
        if (std::string_view(argv[i]).starts_with(option)) {
            // Qt knows the spelling of the command line on each system.
            results = QCoreApplication::arguments().at(i).mid(option.size()).toStdU16String();
        } else {
            rest.push_back(argv[i]);
        }
    }
    int count = static_cast<int>(rest.size());
    benchmark::Initialize(&count, rest.data());
    if (benchmark::ReportUnrecognizedArguments(count, rest.data())) {
        return 1;
    }
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    if (!results.empty()) {
        writeResults(collector, results);
    }
    return 0;
}
