#include "Proc/EffectSettings/ResizeSettings.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"
#include "Proc/ImplNames.h"
#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

using PhotoCore::ResizeSettings;

template <> struct EnumNames<ResizeSettings::SizeUOM>
{
    using E = ResizeSettings::SizeUOM;

    static constexpr EnumNameRow ROWS[] = {
        {"pixels", E::pixels}, {"percents", E::percents}, {"cm", E::cm}, {"inches", E::inches},
        {"mm", E::mm},         {"points", E::points},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

template <> struct Fields<Conf::FrameInfo>
{
    using R = Conf::FrameInfo;
    using List =
        FieldList<FieldDescriptor<&R::width>, FieldDescriptor<&R::height>, FieldDescriptor<&R::ax>, FieldDescriptor<&R::ay>>;
};

template struct Reflected<Conf::FrameInfo>;

template <> struct Fields<ResizeSettings>
{
    using R = ResizeSettings;
    using List = FieldList<FieldDescriptor<&R::m_resolution>, FieldDescriptor<&R::m_uom>, FieldDescriptor<&R::m_frameInfo>,
                           FieldDescriptor<&R::m_scaleFactor>>;
};

template struct Reflected<ResizeSettings>;

} // namespace Ombrel::Proc

namespace Ombrel::PhotoCore
{

using SizeModes = Proc::SettingsResizer::SizeModes;

template class EffectSettingsImpl<Proc::SettingsResizer, ResizeSettings>;

const std::string ResizeSettings::FRAME_SIZE_MODE{"frameSize"};
const std::string ResizeSettings::SCALE_FACTOR{"scaleFactor"};
const std::string ResizeSettings::MODE{"resizeMode"};
const std::string ResizeSettings::METHOD{"resizeMethod"};
const std::string ResizeSettings::UOM{"UOM"};

ResizeSettings::ResizeSettings() = default;
ResizeSettings::ResizeSettings(const ResizeSettings&) = default;
ResizeSettings::ResizeSettings(ResizeSettings&&) noexcept = default;
ResizeSettings& ResizeSettings::operator=(const ResizeSettings&) = default;
ResizeSettings& ResizeSettings::operator=(ResizeSettings&&) noexcept = default;
ResizeSettings::~ResizeSettings() = default;

const std::string& ResizeSettings::GetImplName() const
{
    return Proc::ImplNames::FFMPEG;
}

void ResizeSettings::RefreshMirrors() const
{
    if (settings.GetSizeMode() == SizeModes::CustomFrame)
    {
        m_customMode = settings.GetCustomMode();
        m_frameInfo = settings.GetFrameInfo();
    }
    else if (settings.GetSizeMode() == SizeModes::CustomScale)
    {
        m_scaleFactor = settings.GetScaleFactor();
    }
}

void ResizeSettings::Serialize(PropertyTree& tree) const
{
    RefreshMirrors();
    EffectSettingsImpl::Serialize(tree);
}

void ResizeSettings::Deserialize(const PropertyTree& tree)
{
    EffectSettingsImpl::Deserialize(tree);
    if (settings.GetSizeMode() == SizeModes::CustomFrame)
    {
        if (m_frameInfo.ax == 0 || m_frameInfo.ay == 0)
        {
            ThrowException("Aspect is not specified", RESIZE_DESERIALIZE_LOCATION);
        }
        settings.SetCustomMode(m_customMode, m_frameInfo);
    }
    // Asked again: what was set above may have changed it.
    if (settings.GetSizeMode() == SizeModes::CustomScale)
    {
        settings.SetCustomScale(m_scaleFactor);
    }
}

bool ResizeSettings::operator==(const ResizeSettings& other) const
{
    constexpr double tolerance = 1e-5;
    return settings == other.settings && m_resolution - other.m_resolution < tolerance &&
           other.m_resolution - m_resolution < tolerance;
}

} // namespace Ombrel::PhotoCore
