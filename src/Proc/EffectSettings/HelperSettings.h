#ifndef OMBREL_PROC_EFFECT_SETTINGS_HELPER_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_HELPER_SETTINGS_H

#include "OmbrelExport.h"
#include "PhotoUtil/ISerializable.h"

#include <cstdint>
#include <limits>
#include <set>
#include <string>

namespace Ombrel::Proc
{
struct RecordSchema;
}

namespace Ombrel::PhotoCore
{

/// What the editor's apply step needs of any effect: undo, how the result meets the mask, and the largest size in pixels.
class OMBREL_API HelperSettings : public PhotoUtil::ISerializable
{
public:
    /// How the result of an effect is applied. Stored by name: the names are those below.
    enum class ApplySetting : std::int32_t
    {
        Invalid = 0,
        ApplyToMaskOnly = 1,
        ApplyWithMask = 2,
        ApplyAndSetMask = 3,
        ApplyStop = 4,
        ApplyToAlpha = 5,
        ApplyAndAddToUndo = 6,
    };

    static const Proc::RecordSchema& Schema() noexcept;

    HelperSettings();
    HelperSettings(const HelperSettings&);
    HelperSettings(HelperSettings&&) noexcept;
    HelperSettings& operator=(const HelperSettings&);
    HelperSettings& operator=(HelperSettings&&) noexcept;
    ~HelperSettings() override;

    /// "HelperSettings".
    const std::string& GetClassId() const override;

    void Serialize(PropertyTree& tree) const override;
    void Deserialize(const PropertyTree& tree) override;

    /// All four values, of another `HelperSettings`.
    /// @throws std::bad_cast if the class ids agree and `other` is none
    bool operator==(const PhotoUtil::ISerializable& other) const override;
    bool operator==(const HelperSettings& other) const;

    /// Lets the left value answer. Without it the compiler would turn the two round, since this class is an exact match.
    friend bool operator==(const PhotoUtil::ISerializable& a, const HelperSettings& b)
    {
        return a.operator==(static_cast<const PhotoUtil::ISerializable&>(b));
    }

    /// The editor's mark that undo is set for the effect. False by default.
    bool GetUndoSet() const { return m_undoSet; }
    void SetUndoSet(bool value) { m_undoSet = value; }

    /// How the result is applied. Empty by default.
    std::set<ApplySetting> GetApplyMode() const { return m_applyMode; }
    void SetApplyMode(std::set<ApplySetting> value);

    /// Whether the set above has `flag`.
    bool HasApplyModeFlag(ApplySetting flag) const { return m_applyMode.contains(flag); }

    /// Puts `flag` into the set or takes it out.
    void SetApplyModeFlag(ApplySetting flag, bool isSet);

    /// The largest width in pixels; 4294967295, the default, for any.
    std::uint32_t GetMaxWidth() const { return m_maxWidth; }
    void SetMaxWidth(std::uint32_t value) { m_maxWidth = value; }

    /// The largest height in pixels; 4294967295, the default, for any.
    std::uint32_t GetMaxHeight() const { return m_maxHeight; }
    void SetMaxHeight(std::uint32_t value) { m_maxHeight = value; }

private:
    bool m_undoSet = false;
    std::set<ApplySetting> m_applyMode;
    std::uint32_t m_maxWidth = std::numeric_limits<std::uint32_t>::max();
    std::uint32_t m_maxHeight = std::numeric_limits<std::uint32_t>::max();
};

} // namespace Ombrel::PhotoCore

#endif
