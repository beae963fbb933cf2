#include "Proc/EffectSettings/RegisteredClasses.h"

#include "OmbrelLasting.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace Ombrel::PhotoCore
{
namespace
{

RegisteredClasses MakeEmpty()
{
    return {};
}

} // namespace

struct RegisteredClasses::Table
{
    using List = std::vector<const Entry*>;

    List::const_iterator PlaceOf(std::string_view id) const noexcept
    {
        return std::ranges::lower_bound(sorted, id, {}, [](const Entry* entry) -> std::string_view { return entry->id; });
    }

    const Entry* Find(std::string_view id) const noexcept
    {
        const auto place = PlaceOf(id);
        return place != sorted.end() && (*place)->id == id ? *place : nullptr;
    }

    List sorted; // by class id
    Entry added;
    const Table* before = nullptr; // without the added one
};

const RegisteredClasses& RegisteredClasses::Get()
{
    return Lasting<&MakeEmpty>();
}

RegisteredClasses::~RegisteredClasses()
{
    for (const Table* table = m_table.load(); table;)
    {
        const std::unique_ptr<const Table> last(std::exchange(table, table->before));
    }
}

std::span<const RegisteredClasses::Entry* const> RegisteredClasses::All() const noexcept
{
    const Table* table = m_table.load(std::memory_order_acquire);
    return table ? std::span<const Entry* const>(table->sorted) : std::span<const Entry* const>();
}

const RegisteredClasses::Entry* RegisteredClasses::Find(std::string_view id) noexcept
{
    const RegisteredClasses* made = LastingIfMade<&MakeEmpty>();
    const Table* table = made ? made->m_table.load(std::memory_order_acquire) : nullptr;
    return table ? table->Find(id) : nullptr;
}

bool RegisteredClasses::Add(const std::string& id, IEffectSettings::Factory&& factory) const
{
    return Add(Entry{.id = id, .factory = std::move(factory), .className = {}, .effectClass = {}});
}

bool RegisteredClasses::Add(const EffectClass& effectClass) const
{
    return Add(Entry{.id = effectClass.classId,
                     .factory = effectClass.create,
                     .className = std::string(effectClass.className),
                     .effectClass = effectClass});
}

bool RegisteredClasses::Add(Entry&& entry) const
{
    auto table = std::make_unique<Table>();
    table->added = std::move(entry);
    if (std::optional<EffectClass>& added = table->added.effectClass)
    {
        added->classId = table->added.id.c_str();
        added->className = table->added.className;
        added->registration = Registration::Factory;
    }
    table->before = m_table.load(std::memory_order_acquire);
    do
    {
        if (table->before && table->before->Find(table->added.id))
        {
            return false;
        }
        table->sorted = table->before ? table->before->sorted : Table::List();
        table->sorted.insert(table->PlaceOf(table->added.id), &table->added);
    } while (!m_table.compare_exchange_weak(table->before, table.get(), std::memory_order_acq_rel, std::memory_order_acquire));
    table.release();
    return true;
}

} // namespace Ombrel::PhotoCore
