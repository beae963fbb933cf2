// Does one thing to so many elements and says how long an element took, so that its cost can be seen not to depend on how many
// there are. Counted under callgrind, with `--toggle-collect=Measured*`, it gives the instructions of the thing alone.

#include "EffectLists.h"
#include "Proc/EffectSettings/AdjusterSettings.h"
#include "Proc/EffectSettings/BlurRadialSettings.h"
#include "PropertyTree/PropertyTree.h"
#include "Samples.h"

#include <cstdlib>
#include <ctime>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

using namespace Ombrel;
using Benchmarks::ReadEffects;
using Benchmarks::WriteEffects;
using PhotoCore::IEffectSettings;

// Has its name in the program, by which the count is switched on and off.
extern "C" [[gnu::noinline]] void Measured(const std::function<void()>& work)
{
    work();
}

namespace
{

IEffectSettings::List MakeEffects(std::size_t count)
{
    IEffectSettings::List effects;
    for (std::size_t i = 0; i < count; ++i)
    {
        effects.push_back(PhotoCore::AdjusterSettings::Create(Benchmarks::FullAdjuster(static_cast<int>(i))));
    }
    return effects;
}

PhotoCore::BlurRadialSettings MakePoints(std::size_t count)
{
    PhotoCore::BlurRadialSettings effect;
    effect.GetTypedSettings().m_trace.resize(count, {1, 2});
    return effect;
}

// Does for the first time what would cost more then.
void WarmUp()
{
    PropertyTree tree = WriteEffects(MakeEffects(1));
    ReadEffects(PropertyTree(tree));
    PhotoCore::BlurRadialSettings points = MakePoints(1);
    points.Serialize(tree);
    points.Deserialize(tree);
}

// A list of one element in a list of one element, so many levels deep.
PropertyTree MakeDeep(std::size_t depth)
{
    PropertyTree tree(1);
    for (std::size_t i = 0; i < depth; ++i)
    {
        PropertyTree outer;
        outer.makeList(1).push_back(std::move(tree));
        tree = std::move(outer);
    }
    return tree;
}

// What is made by the work itself is destroyed after it, unless destroying is the work.
int Run(std::string_view what, std::size_t count)
{
    const auto measure = [count](const std::function<void()>& work)
    {
        const std::clock_t start = std::clock();
        Measured(work);
        const std::clock_t ticks = std::clock() - start;
        std::cout << 1e9 / CLOCKS_PER_SEC * static_cast<double>(ticks) / static_cast<double>(count) << '\n';
        return EXIT_SUCCESS;
    };

    WarmUp();
    const bool isOfPoints = what.starts_with("points");
    const bool isOfDepth = what.starts_with("deep");
    const PhotoCore::BlurRadialSettings points = MakePoints(isOfPoints ? count : 0);
    const IEffectSettings::List effects = MakeEffects(isOfPoints || isOfDepth ? 0 : count);
    PropertyTree tree = isOfDepth ? MakeDeep(count) : PropertyTree();
    if (isOfPoints)
    {
        points.Serialize(tree);
    }
    else if (!isOfDepth)
    {
        tree = WriteEffects(effects);
    }

    PropertyTree target;
    IEffectSettings::List made;
    PhotoCore::BlurRadialSettings readPoints;
    if (what == "effects-write")
    {
        return measure([&] { target = WriteEffects(effects); });
    }
    if (what == "effects-read")
    {
        return measure([&] { made = ReadEffects(tree); });
    }
    if (what == "points-write")
    {
        return measure([&] { points.Serialize(target); });
    }
    if (what == "points-read")
    {
        return measure([&] { readPoints.Deserialize(tree); });
    }
    if (what == "effects-copy" || what == "deep-copy")
    {
        return measure([&] { target = tree; });
    }
    if (what == "effects-destroy" || what == "deep-destroy")
    {
        return measure([&] { tree = PropertyTree(); });
    }
    if (what == "deep-compare")
    {
        target = tree;
        return measure([&] { std::cout << (tree == target ? "" : "different "); });
    }
    std::cerr << "there is no " << what << '\n';
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
    {
        std::cerr << "usage: ombrel_growth what count\n";
        return EXIT_FAILURE;
    }
    return Run(argv[1], std::stoul(argv[2]));
}
