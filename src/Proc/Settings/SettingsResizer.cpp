#include "Proc/Settings/SettingsResizer.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsResizer::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsResizer::GetClassId() const
{
    return ClassIdOf<SettingsResizer>();
}

bool SettingsResizer::IsEmpty() const
{
    return *this == SettingsResizer();
}

void SettingsResizer::SetCustomMode(CustomModes mode, const Conf::FrameInfo& frame)
{
    m_sizeMode = SizeModes::CustomFrame;
    m_customMode = mode;
    m_frameInfo = frame;
}

void SettingsResizer::SetCustomScale(double scale)
{
    m_sizeMode = SizeModes::CustomScale;
    m_scaleFactor = scale;
}

bool SettingsResizer::operator==(const SettingsResizer& other) const
{
    return m_sizeMode == other.m_sizeMode && m_customMode == other.m_customMode && m_frameInfo == other.m_frameInfo &&
           m_scaleFactor == other.m_scaleFactor;
}

} // namespace Ombrel::Proc
