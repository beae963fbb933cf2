#include "Proc/EffectSettings/TileSettings.h"

#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/Reflection/Folds.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace Ombrel::PhotoCore
{

namespace
{

using List = IEffectSettings::List;
using Row = TileSettings::Row;

// Plain loops, here and in all that copies and compares: effects stand in tiles in tiles, and the standard's algorithms would
// take more of the stack than all else.

List Cloned(const List& effects)
{
    List clones;
    clones.reserve(effects.size());
    for (const std::shared_ptr<IEffectSettings>& effect : effects)
    {
        clones.push_back(effect ? effect->Clone() : nullptr);
    }
    return clones;
}

Row Cloned(const Row& row)
{
    Row clone;
    clone.m_cols.reserve(row.m_cols.size());
    for (const List& cell : row.m_cols)
    {
        clone.m_cols.push_back(Cloned(cell));
    }
    return clone;
}

// Unlike IEffectSettings::Equals, an effect is compared with itself too: one that differs from itself makes its tile differ.
bool AreEqual(const std::shared_ptr<IEffectSettings>& a, const std::shared_ptr<IEffectSettings>& b)
{
    return a && b ? *a == *b : a == b;
}

template <class Element> bool AreEqual(const std::vector<Element>& a, const std::vector<Element>& b);

bool AreEqual(const Row& a, const Row& b)
{
    return AreEqual(a.m_cols, b.m_cols);
}

// Lists, rows and grids of different size differ without a look at their effects.
template <class Element> bool AreEqual(const std::vector<Element>& a, const std::vector<Element>& b)
{
    bool areEqual = a.size() == b.size();
    for (std::size_t i = 0; areEqual && i != a.size(); ++i)
    {
        areEqual = AreEqual(a[i], b[i]);
    }
    return areEqual;
}

} // namespace

const Proc::RecordSchema& Row::Schema() noexcept
{
    using namespace Proc;
    return Describe<Row, FieldList<FieldDescriptor<&Row::m_cols>>>();
}

const Proc::RecordSchema& TileSettings::Schema() noexcept
{
    using namespace Proc;
    using R = TileSettings;
    return Describe<R, FieldList<FieldDescriptor<&R::m_pre>, FieldDescriptor<&R::m_post>, FieldDescriptor<&R::m_effectRows>>>();
}

TileSettings::TileSettings() = default;

TileSettings::TileSettings(std::uint64_t width, std::uint64_t height)
{
    SetSize(width, height);
}

// NOLINTNEXTLINE(bugprone-copy-constructor-init): the base is made anew, its implementation name and helper settings not copied
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

TileSettings::TileSettings(TileSettings&&) noexcept = default;

TileSettings& TileSettings::operator=(TileSettings&& other) noexcept
{
    if (this != &other)
    {
        // The old effects go last: `other` may stand inside one.
        const List pre = std::exchange(m_pre, std::move(other.m_pre));
        const List post = std::exchange(m_post, std::move(other.m_post));
        const std::vector<Row> rows = std::exchange(m_effectRows, std::move(other.m_effectRows));
        EffectSettingsReflection::operator=(std::move(other));
    }
    return *this;
}

TileSettings::~TileSettings() = default;

const std::string& TileSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

std::shared_ptr<TileSettings> TileSettings::Create(std::uint64_t width, std::uint64_t height)
{
    return std::make_shared<TileSettings>(width, height);
}

void TileSettings::SetSize(std::uint64_t width, std::uint64_t height)
{
    constexpr std::uint64_t most = std::numeric_limits<std::size_t>::max(); // less than the numbers may be on 32-bit machines
    std::vector<Row> rows(static_cast<std::size_t>(std::min(height, most)));
    for (Row& row : rows)
    {
        row.m_cols.resize(static_cast<std::size_t>(std::min(width, most)));
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
    for (const Row& row : other.m_effectRows)
    {
        rows.push_back(Cloned(row));
    }

    std::swap(m_pre, pre);
    std::swap(m_post, post);
    std::swap(m_effectRows, rows);
}

bool TileSettings::operator==(const TileSettings& other) const
{
    return AreEqual(m_pre, other.m_pre) && AreEqual(m_post, other.m_post) && AreEqual(m_effectRows, other.m_effectRows);
}

} // namespace Ombrel::PhotoCore
