#include "Rows.h"

#include <QCoreApplication>

#if defined(__GLIBC__)
    #include <malloc.h>
#endif

#include <algorithm>
#include <cstdio>
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

// A machine that also does other things is noisier than the targets are sharp.
constexpr double noise = 1.15;

struct Case {
    std::vector<std::string> order;
    std::map<std::string, std::vector<double>> seconds;
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
            bool const stated = type.ends_with("real_time") || type.ends_with("manual_time");
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

std::string time(double seconds) {
    char const* const units[] = {"s", "ms", "us", "ns"};
    int unit = 0;
    while (unit < 3 && seconds < 1) {
        seconds *= 1000;
        ++unit;
    }
    char text[32];
    std::snprintf(text, sizeof text, "%.3g %s", seconds, units[unit]);
    return text;
}

void writeTables(Collector const& collector, std::filesystem::path const& path) {
    std::ofstream out(path);
    out << "| row | workload | contestant | median | ours / it | target | holds |\n"
           "|---|---|---|---|---|---|---|\n";
    for (auto const& [key, c] : collector.cases) {
        auto const& [row, workload] = key;
        auto const ours = c.seconds.find(bench::ours);
        if (ours == c.seconds.end()) {
            continue;
        }
        double const mine = median(ours->second);
        auto const line = [&](std::string const& name, double theirs, double atMost) {
            char ratio[32] = "";
            char target[32] = "";
            std::snprintf(ratio, sizeof ratio, "%.3g", mine / theirs);
            char const* holds = "";
            if (atMost > 0) {
                std::snprintf(target, sizeof target, "<= %.3g", atMost);
                holds = mine / theirs <= atMost * noise ? "yes" : "**no**";
            }
            out << "| " << row << " | " << workload << " | " << name << " | " << time(theirs)
                << " | " << ratio << " | " << target << " | " << holds << " |\n";
        };
        out << "| " << row << " | " << workload << " | ours | " << time(mine) << " | | | |\n";
        for (std::string const& name : c.order) {
            if (name == bench::ours) {
                continue;
            }
            double atMost = 0;
            for (bench::Target const& t : bench::targets()) {
                if (t.row == row && t.workload == workload && t.against == name &&
                    t.otherWorkload.empty()) {
                    atMost = t.atMost;
                }
            }
            line(name, median(c.seconds.at(name)), atMost);
        }
        for (bench::Target const& t : bench::targets()) {
            if (t.row != row || t.workload != workload || t.otherWorkload.empty()) {
                continue;
            }
            auto const other = collector.cases.find({row, t.otherWorkload});
            if (other != collector.cases.end() && other->second.seconds.contains(t.against)) {
                line(t.against + ": " + t.otherWorkload,
                     median(other->second.seconds.at(t.against)), t.atMost);
            }
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
#if defined(__GLIBC__)
    mallopt(M_TRIM_THRESHOLD, -1); // what a row has freed stays warm for the next
#endif
    std::filesystem::path table;
    std::vector<char*> rest;
    for (int i = 0; i < argc; ++i) {
        constexpr std::string_view option = "--table=";
        if (std::string_view(argv[i]).starts_with(option)) {
            // Qt knows the spelling of the command line on each system.
            table = QCoreApplication::arguments().at(i).mid(option.size()).toStdU16String();
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
    if (!table.empty()) {
        writeTables(collector, table);
    }
    return 0;
}
