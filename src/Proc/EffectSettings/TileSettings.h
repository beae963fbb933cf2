#ifndef OMBREL_PROC_EFFECT_SETTINGS_TILE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_TILE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/EffectSettings/TileSettingsStub.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Ombrel::PhotoCore
{

/// Effects for an image that is cut into a grid: a list that runs before, one list per cell, and a list that runs after. What
/// is stored are these lists, not the record. There is no property access.
///
/// A tile owns its effects: copies clone them. An effect may be null. The grid is made with rows of equal length; one that was
/// read from a tree may be ragged, and is copied, compared and written as it is.
class OMBREL_API TileSettings : public EffectSettingsOneInputReflection<TileSettingsStub, TileSettings>
{
public:
    /// One row of the grid: a list of effects per cell.
    struct Row
    {
        OMBREL_API static const Proc::RecordSchema& Schema() noexcept;

        std::vector<List> m_cols;

        bool operator==(const Row&) const = default;
    };

    static const Proc::RecordSchema& Schema() noexcept;

    using EffectSettingsImpl::operator==;
    using EffectSettingsImpl::Create;
    using EffectSettingsReflection::EffectSettingsReflection;

    /// An empty grid.
    TileSettings();

    /// A grid of empty cells.
    /// @throws what `SetSize` throws
    TileSettings(std::uint64_t width, std::uint64_t height);

    /// Clones the effects and leaves implementation name and helper settings out: a copy has their defaults, and assignment
    /// keeps those of the receiver. `other` may stand inside an effect of the receiver.
    /// @throws what `Clone` throws; the receiver is then unchanged
    TileSettings(const TileSettings& other);
    TileSettings& operator=(const TileSettings& other);

    /// Takes everything, also implementation name and helper settings.
    TileSettings(TileSettings&& other) noexcept;
    TileSettings& operator=(TileSettings&& other) noexcept;

    ~TileSettings() override;

    const std::string& GetClassId() const override;

    /// A new object with a grid of empty cells.
    static std::shared_ptr<TileSettings> Create(std::uint64_t width, std::uint64_t height);

    /// The effects that run before and after those of the cells.
    List& Pre() { return m_pre; }
    const List& Pre() const { return m_pre; }
    List& Post() { return m_post; }
    const List& Post() const { return m_post; }

    /// The effects of the cell in column `x` and row `y`, which must be within the grid.
    List& Effect(std::uint64_t x, std::uint64_t y) { return const_cast<List&>(std::as_const(*this).Effect(x, y)); }

    const List& Effect(std::uint64_t x, std::uint64_t y) const
    {
        return m_effectRows[static_cast<std::size_t>(y)].m_cols[static_cast<std::size_t>(x)];
    }

    /// How many cells the first row has; 0 without rows.
    std::uint64_t GetWidth() const { return m_effectRows.empty() ? 0 : m_effectRows.front().m_cols.size(); }

    /// How many rows there are.
    std::uint64_t GetHeight() const { return m_effectRows.size(); }

    /// Makes a new grid of empty cells; what the cells held is lost, also where the size stays.
    /// @throws std::length_error or std::bad_alloc if the grid is too large; the old one then stays
    void SetSize(std::uint64_t width, std::uint64_t height);

    /// The same shape, and equal effects at each place of each list: two nulls are equal, two effects compare by their `==`.
    /// @throws what the comparison of two effects throws
    bool operator==(const TileSettings& other) const override;

    /// Lets the left effect answer. Without it the compiler would turn the two round, since this class is an exact match.
    friend bool operator==(const IEffectSettings& a, const TileSettings& b)
    {
        return a.operator==(static_cast<const IEffectSettings&>(b));
    }

private:
    OMBREL_LOCAL void CopyFrom(const TileSettings& other);

    List m_pre;
    List m_post;
    std::vector<Row> m_effectRows;
};

} // namespace Ombrel::PhotoCore

#endif
