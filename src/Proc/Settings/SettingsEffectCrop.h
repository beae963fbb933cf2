#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_CROP_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_CROP_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The area of the picture that is kept, in pixels. Every value is stored as given, inside the picture or not; all 0 keeps the
/// picture as it is.
class OMBREL_API SettingsEffectCrop : public ComparedRecord<SettingsEffectCrop>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_CROP";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if all four values are 0, as by default.
    bool IsEmpty() const override;

    std::int32_t GetX() const { return m_x; }
    void SetX(std::int32_t value) { m_x = value; }

    std::int32_t GetY() const { return m_y; }
    void SetY(std::int32_t value) { m_y = value; }

    std::int32_t GetWidth() const { return m_width; }
    void SetWidth(std::int32_t value) { m_width = value; }

    std::int32_t GetHeight() const { return m_height; }
    void SetHeight(std::int32_t value) { m_height = value; }

private:
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    std::int32_t m_width = 0;
    std::int32_t m_height = 0;
};

} // namespace Ombrel::Proc

#endif
