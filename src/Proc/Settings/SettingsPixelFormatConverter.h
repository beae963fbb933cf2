#ifndef OMBREL_PROC_SETTINGS_SETTINGS_PIXEL_FORMAT_CONVERTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_PIXEL_FORMAT_CONVERTER_H

#include "Proc/Settings/PixFmt.h"
#include "Proc/Settings/Settings.h"

#include <cstdint>
#include <vector>

namespace Ombrel::Proc
{

/// What every conversion between pixel layouts needs: the layouts that will do, what to fill up with, and what becomes of the
/// alpha channel. A base for records; every value is stored as given.
class OMBREL_API SettingsPixelFormatConverter : public Settings
{
public:
    SettingsPixelFormatConverter(const SettingsPixelFormatConverter&);
    SettingsPixelFormatConverter(SettingsPixelFormatConverter&&) noexcept;
    SettingsPixelFormatConverter& operator=(const SettingsPixelFormatConverter&);
    SettingsPixelFormatConverter& operator=(SettingsPixelFormatConverter&&) noexcept;
    ~SettingsPixelFormatConverter() override;

    /// A copy of the formats, in the order in which they were added.
    std::vector<PixFmt> GetRequiredFormats() const { return m_requiredFormats; }

    /// Appends the format, even one that is there already, and returns this record. Nothing takes a format away again.
    SettingsPixelFormatConverter& AddPixFmt(PixFmt format);

    /// The colour of what the picture does not cover. Black by default.
    std::uint8_t GetPadColorR() const { return m_padColorR; }
    std::uint8_t GetPadColorG() const { return m_padColorG; }
    std::uint8_t GetPadColorB() const { return m_padColorB; }
    void SetPadColor(std::uint8_t r, std::uint8_t g, std::uint8_t b);

    /// Whether the picture has an alpha channel.
    bool GetHasAlpha() const { return m_hasAlpha; }
    void SetHasAlpha(bool value) { m_hasAlpha = value; }

    /// Whether colours are multiplied by alpha.
    bool GetMultiplyAlpha() const { return m_multiplyAlpha; }
    void SetMultiplyAlpha(bool value) { m_multiplyAlpha = value; }

    /// Whether alpha is dropped in any case.
    bool GetForceDropAlpha() const { return m_forceDropAlpha; }
    void SetForceDropAlpha(bool value) { m_forceDropAlpha = value; }

    /// Whether all values are equal, the formats in the same order.
    bool operator==(const SettingsPixelFormatConverter& other) const;

protected:
    SettingsPixelFormatConverter();

private:
    std::vector<PixFmt> m_requiredFormats;
    std::uint8_t m_padColorR = 0;
    std::uint8_t m_padColorG = 0;
    std::uint8_t m_padColorB = 0;
    bool m_hasAlpha = false;
    bool m_multiplyAlpha = false;
    bool m_forceDropAlpha = false;
};

} // namespace Ombrel::Proc

#endif
