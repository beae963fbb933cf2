#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TEXTURE_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_TEXTURE_H

#include "Proc/Settings/SettingsEffectFlip.h"
#include "Proc/Settings/SettingsEffectTranspose.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <string>

namespace Ombrel::Proc
{

/// Lays a texture over the picture.
class OMBREL_API SettingsEffectTexture : public ComparedRecord<SettingsEffectTexture>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_TEXTURE";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class ResizeMode : std::int32_t
    {
        Scale = 0,
        Tile = 1,
    };

    /// True if there is no texture, or `m_alpha` is 0.
    bool IsEmpty() const override;

    ResizeMode m_resizeMode = ResizeMode::Scale;
    double m_alpha = 0.0;
    SettingsEffectFlip m_flip;
    SettingsEffectTranspose m_transpose;
    double m_x = 0.5;
    double m_y = 0.5;
    bool m_isPreview = false;
    std::string m_texture; // what it names, a file or a resource, is the caller's business
};

} // namespace Ombrel::Proc

#endif
