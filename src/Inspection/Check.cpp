#include "Inspection/Check.h"

#include "Inspection/EffectCheck.h"
#include "Inspection/Forms.h"
#include "Inspection/ReleaseCheck.h"

#include <utility>

namespace Ombrel::Inspection
{

namespace
{

// Effects in effects wait on a stack, so that their nesting costs no stack of the thread. They come off it in reading order.
// @param release null for this library
std::vector<Finding> CheckAll(const PropertyTree& effectOrList, std::size_t maxFindings, const Release* release, bool areLosses)
{
    static constexpr Place ROOT{};
    CheckContext context;
    std::vector<Finding> found;
    std::vector<Findings::Item> pending;
    const PropertyTree full = release ? Freeze(effectOrList) : PropertyTree();
    if (effectOrList.isList())
    {
        const PropertyTree::List& list = effectOrList.getList();
        for (std::size_t index = list.size(); index-- != 0;)
        {
            context.places.push_back({.parent = &ROOT, .key = {}, .index = index, .isOfEffect = true});
            pending.emplace_back(EffectNode{
                .tree = &list[index], .place = &context.places.back(), .full = release ? &full.getList()[index] : nullptr});
        }
    }
    else
    {
        pending.emplace_back(EffectNode{.tree = &effectOrList, .place = &ROOT, .full = release ? &full : nullptr});
    }
    while (!pending.empty() && found.size() < maxFindings)
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
        if (release)
        {
            ReleaseCheck(release->GetModel(), node, areLosses, context).Replace(items);
        }
        for (auto next = items.rbegin(); next != items.rend(); ++next)
        {
            pending.push_back(std::move(**next));
        }
    }
    return found;
}

} // namespace

std::vector<Finding> Check(const PropertyTree& effectOrList, const CheckOptions& options)
{
    return CheckAll(effectOrList, options.maxFindings, options.release.get(), false);
}

std::vector<Finding> LossesFor(const Release& release, const PropertyTree& effectOrList)
{
    return CheckAll(effectOrList, CheckOptions().maxFindings, &release, true);
}

} // namespace Ombrel::Inspection
