#include "Proc/Settings/SettingsPixelFormatConverter.h"

namespace Ombrel::Proc
{

SettingsPixelFormatConverter::SettingsPixelFormatConverter() = default;
SettingsPixelFormatConverter::SettingsPixelFormatConverter(const SettingsPixelFormatConverter&) = default;
SettingsPixelFormatConverter::SettingsPixelFormatConverter(SettingsPixelFormatConverter&&) noexcept = default;
SettingsPixelFormatConverter& SettingsPixelFormatConverter::operator=(const SettingsPixelFormatConverter&) = default;
SettingsPixelFormatConverter& SettingsPixelFormatConverter::operator=(SettingsPixelFormatConverter&&) noexcept = default;
SettingsPixelFormatConverter::~SettingsPixelFormatConverter() = default;

SettingsPixelFormatConverter& SettingsPixelFormatConverter::AddPixFmt(PixFmt format)
{
    m_requiredFormats.push_back(format);
    return *this;
}

void SettingsPixelFormatConverter::SetPadColor(std::uint8_t r, std::uint8_t g, std::uint8_t b)
{
    m_padColorR = r;
    m_padColorG = g;
    m_padColorB = b;
}

bool SettingsPixelFormatConverter::operator==(const SettingsPixelFormatConverter& other) const
{
    return m_requiredFormats == other.m_requiredFormats && m_padColorR == other.m_padColorR &&
           m_padColorG == other.m_padColorG && m_padColorB == other.m_padColorB && m_hasAlpha == other.m_hasAlpha &&
           m_multiplyAlpha == other.m_multiplyAlpha && m_forceDropAlpha == other.m_forceDropAlpha;
}

} // namespace Ombrel::Proc
