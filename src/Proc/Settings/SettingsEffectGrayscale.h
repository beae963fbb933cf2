#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GRAYSCALE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_GRAYSCALE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectGrayscale : public ComparedRecord<SettingsEffectGrayscale>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_GRAYSCALE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class GrayscaleMethod : std::int32_t
    {
        Empty = 0,
        Average = 1,
        Brightness = 2,
        Lightness = 3,
        MeanSquare = 4,
        MeanRootSquare = 5,
        Rec601Luma = 6,
        Rec601Luminance = 7,
        Rec709Luma = 8,
        Rec709Luminance = 9,
    };

    SettingsEffectGrayscale() = default;

    /// By `method`.
    explicit SettingsEffectGrayscale(GrayscaleMethod method) : m_method(method) {}

    /// True if `m_method` is `Empty`.
    bool IsEmpty() const override;

    GrayscaleMethod m_method = GrayscaleMethod::Empty;
};

} // namespace Ombrel::Proc

#endif
