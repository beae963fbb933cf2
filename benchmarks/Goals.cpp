#include "Goals.h"

#include <iomanip>
#include <ostream>

namespace Ombrel::Benchmarks
{
namespace
{

enum class Measure
{
    TimesAsLong, // as the other; at most
    TimesAsFast, // as the other; at least
    Allocations, // at most
};

struct Goal
{
    const char* name;
    Measure measure;
    double limit;
    const char* subject;
    const char* other = "";
};

constexpr const char* WRITE_FULL = "write, 20 of 20 changed/library";
constexpr const char* WRITE_SPARSE = "write, 2 of 20 changed/library";
constexpr const char* READ_FULL = "read, 20 of 20 changed/library";
constexpr const char* READ_SPARSE = "read, 2 of 20 changed/library";

constexpr Goal GOALS[] = {
    {"write-20-time/hand-written", Measure::TimesAsLong, 1.3, WRITE_FULL, "write, 20 of 20 changed/hand-written"},
    {"write-20-allocations", Measure::Allocations, 13, WRITE_FULL}, // 6 maps and 7 keys of more than 15 characters
    {"read-20-time/hand-written", Measure::TimesAsLong, 1.2, READ_FULL, "read, 20 of 20 changed/hand-written"},
    {"read-20-allocations", Measure::Allocations, 0, READ_FULL},
    {"write-20-speed/nlohmann", Measure::TimesAsFast, 7, WRITE_FULL, "write, 20 of 20 changed/nlohmann"},
    {"read-20-speed/nlohmann", Measure::TimesAsFast, 3.5, READ_FULL, "read, 20 of 20 changed/nlohmann"},
    {"write-20-time/rapidjson", Measure::TimesAsLong, 1.5, WRITE_FULL, "write, 20 of 20 changed/rapidjson"},
    {"read-20-speed/rapidjson", Measure::TimesAsFast, 2, READ_FULL, "read, 20 of 20 changed/rapidjson"},
    {"write-2-speed/nlohmann", Measure::TimesAsFast, 4.5, WRITE_SPARSE, "write, 2 of 20 changed/nlohmann"},
    {"write-2-allocations", Measure::Allocations, 1, WRITE_SPARSE},
    {"read-2-speed/nlohmann", Measure::TimesAsFast, 3, READ_SPARSE, "read, 2 of 20 changed/nlohmann"},
    {"write-default-allocations", Measure::Allocations, 0, "write, none changed/library"},
    {"read-empty-allocations", Measure::Allocations, 0, "read, none changed/library"},
    {"list-write-speed/nlohmann", Measure::TimesAsFast, 4.5, "write 1,000 effects/library", "write 1,000 effects/nlohmann"},
    {"list-read-speed/nlohmann", Measure::TimesAsFast, 1.5, "read 1,000 effects/library", "read 1,000 effects/nlohmann"},
    {"list-copy-speed/nlohmann", Measure::TimesAsFast, 3.5, "copy tree of 1,000 effects/library",
     "copy tree of 1,000 effects/nlohmann"},
    {"get-property-allocations", Measure::Allocations, 0, "get property/library"},
    {"set-property-allocations", Measure::Allocations, 0, "set property/library"},
    {"get-property-speed/write", Measure::TimesAsFast, 10, "get property/library", WRITE_FULL},
    {"set-property-speed/read", Measure::TimesAsFast, 3, "set property/library", READ_FULL},
    {"create-time/make_shared", Measure::TimesAsLong, 3, "create by id/library", "make_shared of the class/library"},
};

} // namespace

void PrintGoals(std::ostream& out, const std::map<std::string, Figure>& figures)
{
    for (const Goal& goal : GOALS)
    {
        const auto subject = figures.find(goal.subject);
        const auto other = figures.find(goal.other);
        const bool isAlone = goal.measure == Measure::Allocations;
        if (subject == figures.end() || (!isAlone && other == figures.end()))
        {
            continue;
        }
        const double value = isAlone                                ? subject->second.allocations
                             : goal.measure == Measure::TimesAsLong ? subject->second.nanoseconds / other->second.nanoseconds
                                                                    : other->second.nanoseconds / subject->second.nanoseconds;
        const bool isMet = goal.measure == Measure::TimesAsFast ? value >= goal.limit : value <= goal.limit;
        out << "GOAL " << goal.name << ' ' << std::setprecision(3) << value
            << (goal.measure == Measure::TimesAsFast ? " >=" : " <=") << goal.limit << (isMet ? " ok\n" : " miss\n");
    }
}

} // namespace Ombrel::Benchmarks
