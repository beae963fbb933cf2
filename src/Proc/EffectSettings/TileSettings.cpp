#include "Proc/EffectSettings/TileSettings.h"

#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/EffectSettings/EffectSettingsBody.h"
#include "Proc/Reflection/Folds.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Ombrel::Proc
{

using PhotoCore::TileSettings;

template <> struct Fields<TileSettings::Row>
{
    using R = TileSettings::Row;
    using List = FieldList<FieldDescriptor<&R::m_cols>>;
};

template struct Reflected<TileSettings::Row>;

template <> struct Fields<TileSettings>
{
    using R = TileSettings;
    using List = FieldList<FieldDescriptor<&R::m_pre>, FieldDescriptor<&R::m_post>, FieldDescriptor<&R::m_effectRows>>;
};

template struct Reflected<TileSettings>;

} // namespace Ombrel::Proc

namespace Ombrel::PhotoCore
{

template class EffectSettingsImpl<TileSettingsStub, TileSettings>;

namespace
{

using List = IEffectSettings::List;
using Row = TileSettings::Row;

List Cloned(const List& effects)
{
    List clones;
    clones.reserve(effects.size());
    std::ranges::transform(effects, std::back_inserter(clones),
                           [](const auto& effect) { return effect ? effect->Clone() : nullptr; });
    return clones;
}

Row Cloned(const Row& row)
{
    Row clone;
    clone.m_cols.reserve(row.m_cols.size());
    std::ranges::transform(row.m_cols, std::back_inserter(clone.m_cols), [](const List& cell) { return Cloned(cell); });
    return clone;
}

// Unlike IEffectSettings::Equals, an effect is compared with itself too: one that differs from itself makes its tile differ.
bool AreEqual(const std::shared_ptr<IEffectSettings>& a, const std::shared_ptr<IEffectSettings>& b)
{
    return a && b ? *a == *b : a == b;
}

// Lists, rows and grids of different size differ without a look at their effects.
bool AreListsEqual(const List& a, const List& b)
{
    return std::ranges::equal(a, b, AreEqual);
}

bool AreRowsEqual(const Row& a, const Row& b)
{
    return std::ranges::equal(a.m_cols, b.m_cols, AreListsEqual);
}

} // namespace

TileSettings::TileSettings() = default;

TileSettings::TileSettings(std::uint64_t width, std::uint64_t height)
{
    SetSize(width, height);
}

// The base is made anew: implementation name and helper settings are not copied.
TileSettings::TileSettings(const TileSettings& other) : EffectSettingsReflection()
{
    CopyFrom(other);
}

TileSettings& TileSettings::operator=(const TileSettings& other)
{
    if (this != &other)
    {
        CopyFrom(other);
    }
    return *this;
}

TileSettings::~TileSettings() = default;

std::shared_ptr<TileSettings> TileSettings::Create(std::uint64_t width, std::uint64_t height)
{
    return std::make_shared<TileSettings>(width, height);
}

void TileSettings::SetSize(std::uint64_t width, std::uint64_t height)
{
    std::vector<Row> rows(height);
    for (Row& row : rows)
    {
        row.m_cols.resize(width);
    }
    m_effectRows = std::move(rows);
}

void TileSettings::CopyFrom(const TileSettings& other)
{
    // All clones before the first old effect goes, in which `other` may stand.
    List pre = Cloned(other.m_pre);
    List post = Cloned(other.m_post);
    std::vector<Row> rows;
    rows.reserve(other.m_effectRows.size());
    std::ranges::transform(other.m_effectRows, std::back_inserter(rows), [](const Row& row) { return Cloned(row); });

    std::swap(m_pre, pre);
    std::swap(m_post, post);
    std::swap(m_effectRows, rows);
}

bool TileSettings::operator==(const TileSettings& other) const
{
    return AreListsEqual(m_pre, other.m_pre) && AreListsEqual(m_post, other.m_post) &&
           std::ranges::equal(m_effectRows, other.m_effectRows, AreRowsEqual);
}

} // namespace Ombrel::PhotoCore
