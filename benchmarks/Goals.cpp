#include "Goals.h"

#include <iomanip>
#include <ostream>

namespace Ombrel::Benchmarks
{
namespace
{

// What is at most so large: allocations alone, or the quotient of two times or two sizes.
struct Goal
{
    const char* name;
    double limit;
    double aim; // none: 0
    const Figures Measured::*figures;
    const char* subject;
    const char* other = nullptr;
};

constexpr auto TIME = &Measured::nanoseconds;
constexpr auto ALLOCATED = &Measured::allocations;
constexpr auto BYTES = &Measured::bytes;

constexpr const char* WRITE_FULL = "write, 20 of 20 changed/library";
constexpr const char* WRITE_SPARSE = "write, 2 of 20 changed/library";
constexpr const char* READ_FULL = "read, 20 of 20 changed/library";
constexpr const char* READ_SPARSE = "read, 2 of 20 changed/library";
constexpr const char* LIST_WRITE = "write 1,000 effects/library";
constexpr const char* LIST_READ = "read 1,000 effects/library";
constexpr const char* LIST_COPY = "copy tree of 1,000 effects/library";
constexpr const char* TEXT_TO_EFFECTS = "text to 1,000 effects/library";
constexpr const char* TEXT_TO_FACES = "text to 1,000 with faces/library";
constexpr const char* EFFECTS_TO_TEXT = "1,000 effects to text/library";
constexpr const char* BYTES_WRITTEN = "bytes per effect, written/library";
constexpr const char* BYTES_READ = "bytes per effect, read from text/library";

// Lists are without faces unless the name says so.
constexpr Goal GOALS[] = {
    {"write-20/hand-written", 1.3, 0, TIME, WRITE_FULL, "write, 20 of 20 changed/hand-written"},
    {"write-20/rapidjson-pool", 1.25, 1.0, TIME, WRITE_FULL, "write, 20 of 20 changed/rapidjson"},
    {"write-20/boost-heap", 0.33, 0.27, TIME, WRITE_FULL, "write, 20 of 20 changed/boost-heap"},
    {"write-20/nlohmann", 0.24, 0.20, TIME, WRITE_FULL, "write, 20 of 20 changed/nlohmann"},
    {"write-20-allocations", 13, 0, ALLOCATED, WRITE_FULL}, // 6 maps and 7 keys of more than 15 characters
    {"read-20/hand-written", 1.2, 0, TIME, READ_FULL, "read, 20 of 20 changed/hand-written"},
    {"read-20/rapidjson", 0.65, 0.55, TIME, READ_FULL, "read, 20 of 20 changed/rapidjson"},
    {"read-20/nlohmann", 0.33, 0, TIME, READ_FULL, "read, 20 of 20 changed/nlohmann"},
    {"read-20-allocations", 0, 0, ALLOCATED, READ_FULL},
    {"write-2/rapidjson-pool", 1.1, 0.95, TIME, WRITE_SPARSE, "write, 2 of 20 changed/rapidjson"},
    {"write-2/nlohmann", 0.65, 0, TIME, WRITE_SPARSE, "write, 2 of 20 changed/nlohmann"},
    {"write-2-allocations", 1, 0, ALLOCATED, WRITE_SPARSE},
    {"read-2/nlohmann", 0.40, 0, TIME, READ_SPARSE, "read, 2 of 20 changed/nlohmann"},
    {"write-default-allocations", 0, 0, ALLOCATED, "write, none changed/library"},
    {"read-empty-allocations", 0, 0, ALLOCATED, "read, none changed/library"},
    {"copy-20/rapidjson-pool", 0.70, 0.60, TIME, "copy tree, 20 of 20 changed/library",
     "copy tree, 20 of 20 changed/rapidjson"},
    {"list-write/boost-monotonic", 0.85, 0.70, TIME, LIST_WRITE, "write 1,000 effects/boost-monotonic"},
    {"list-copy/boost-monotonic", 1.05, 0.90, TIME, LIST_COPY, "copy tree of 1,000 effects/boost-monotonic"},
    {"list-read/nlohmann", 0.95, 0.85, TIME, LIST_READ, "read 1,000 effects/nlohmann"},
    {"list-read/rapidjson", 0.95, 0.85, TIME, LIST_READ, "read 1,000 effects/rapidjson"},
    {"list-read/boost-heap", 0.95, 0.85, TIME, LIST_READ, "read 1,000 effects/boost-heap"},
    {"list-read/boost-monotonic", 0.95, 0.85, TIME, LIST_READ, "read 1,000 effects/boost-monotonic"},
    {"list-with-faces-write/nlohmann", 0.42, 0, TIME, "write 1,000 with faces/library", "write 1,000 with faces/nlohmann"},
    {"list-with-faces-read/nlohmann", 0.667, 0, TIME, "read 1,000 with faces/library", "read 1,000 with faces/nlohmann"},
    {"list-with-faces-copy/nlohmann", 0.42, 0, TIME, "copy tree of 1,000 with faces/library",
     "copy tree of 1,000 with faces/nlohmann"},
    {"bytes-per-effect/nlohmann", 0.36, 0, BYTES, BYTES_WRITTEN, "bytes per effect, written/nlohmann"},
    {"bytes-per-effect-read/written", 1.1, 0, BYTES, BYTES_READ, BYTES_WRITTEN},
    {"text-to-tree/boost-heap", 0.92, 0.75, TIME, "text to tree of 1,000 effects/library",
     "text to tree of 1,000 effects/boost-heap"},
    {"text-to-effects/boost-heap", 0.92, 0.75, TIME, TEXT_TO_EFFECTS, "text to 1,000 effects/boost-heap"},
    {"text-to-effects/nlohmann", 0.333, 0, TIME, TEXT_TO_EFFECTS, "text to 1,000 effects/nlohmann"},
    {"text-to-effects-with-faces/nlohmann", 0.5, 0, TIME, TEXT_TO_FACES, "text to 1,000 with faces/nlohmann"},
    {"effects-to-text/boost-heap", 0.72, 0.60, TIME, EFFECTS_TO_TEXT, "1,000 effects to text/boost-heap"},
    {"get-property-allocations", 0, 0, ALLOCATED, "get property/library"},
    {"set-property-allocations", 0, 0, ALLOCATED, "set property/library"},
    {"get-property/write-20", 0.1, 0, TIME, "get property/library", WRITE_FULL},
    {"set-property/read-20", 0.333, 0, TIME, "set property/library", READ_FULL},
    {"create/make_shared", 1.4, 0, TIME, "create by id/library", "make_shared of the class/library"},
};

} // namespace

void PrintGoals(std::ostream& out, const Measured& measured)
{
    for (const Goal& goal : GOALS)
    {
        const Figures& figures = measured.*goal.figures;
        const auto subject = figures.find(goal.subject);
        const auto other = goal.other ? figures.find(goal.other) : figures.end();
        if (subject == figures.end() || (goal.other && other == figures.end()))
        {
            continue;
        }
        const double value = goal.other ? subject->second / other->second : subject->second;
        out << "GOAL " << goal.name << ' ' << std::setprecision(3) << value << " <=" << goal.limit;
        if (goal.aim != 0)
        {
            out << " (" << goal.aim << ')';
        }
        out << (value <= goal.limit ? " ok\n" : " miss\n");
    }
}

} // namespace Ombrel::Benchmarks
