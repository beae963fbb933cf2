#include "Inspection/Check.h"

#include "Inspection/EffectCheck.h"

#include <utility>

namespace Ombrel::Inspection
{

// Effects in effects wait on a stack, so that their nesting costs no stack of the thread. They come off it in reading order.
std::vector<Finding> Check(const PropertyTree& effectOrList, const CheckOptions& options)
{
    static constexpr Place ROOT{};
    CheckContext context;
    std::vector<Finding> found;
    std::vector<Findings::Item> pending;
    if (effectOrList.isList())
    {
        const PropertyTree::List& list = effectOrList.getList();
        for (std::size_t index = list.size(); index-- != 0;)
        {
            context.places.push_back({.parent = &ROOT, .key = {}, .index = index, .isOfEffect = true});
            pending.emplace_back(EffectNode{.tree = &list[index], .place = &context.places.back()});
        }
    }
    else
    {
        pending.emplace_back(EffectNode{.tree = &effectOrList, .place = &ROOT});
    }
    while (!pending.empty() && found.size() < options.maxFindings)
    {
        Findings::Item item = std::move(pending.back());
        pending.pop_back();
        if (Finding* finding = std::get_if<Finding>(&item))
        {
            found.push_back(std::move(*finding));
            continue;
        }
        const EffectNode node = std::get<EffectNode>(item);
        EffectCheck check(node, context);
        auto& items = check.Run();
        for (auto next = items.rbegin(); next != items.rend(); ++next)
        {
            pending.push_back(std::move(**next));
        }
    }
    return found;
}

} // namespace Ombrel::Inspection
