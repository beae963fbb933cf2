#include "Proc/EffectSettings/RegisteredFactories.h"

#include "OmbrelLasting.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace Ombrel::PhotoCore
{
namespace
{

RegisteredFactories MakeEmpty()
{
    return {};
}

} // namespace

struct RegisteredFactories::Table
{
    struct Entry
    {
        std::string id;
        Factory factory;
    };

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
    std::unique_ptr<const Entry> added;
    const Table* before = nullptr; // without the added one
};

const RegisteredFactories& RegisteredFactories::Get()
{
    return Lasting<&MakeEmpty>();
}

RegisteredFactories::~RegisteredFactories()
{
    for (const Table* table = m_table.load(); table;)
    {
        const std::unique_ptr<const Table> last(std::exchange(table, table->before));
    }
}

const RegisteredFactories::Factory* RegisteredFactories::Find(std::string_view id) const noexcept
{
    const Table* table = m_table.load(std::memory_order_acquire);
    const Table::Entry* found = table ? table->Find(id) : nullptr;
    return found ? &found->factory : nullptr;
}

bool RegisteredFactories::Add(const std::string& id, Factory&& factory) const
{
    auto table = std::make_unique<Table>();
    table->added = std::make_unique<const Table::Entry>(Table::Entry{id, std::move(factory)});
    table->before = m_table.load(std::memory_order_acquire);
    do
    {
        if (table->before && table->before->Find(id))
        {
            return false;
        }
        table->sorted = table->before ? table->before->sorted : Table::List();
        table->sorted.insert(table->PlaceOf(id), table->added.get());
    } while (!m_table.compare_exchange_weak(table->before, table.get(), std::memory_order_acq_rel, std::memory_order_acquire));
    table.release();
    return true;
}

} // namespace Ombrel::PhotoCore
