#include "Proc/EffectSettings/ResizeSettings.h"

#include "Exception/Exception.h"
#include "OmbrelLasting.h"
#include "Proc/EarlyInit.h"
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

} // namespace Ombrel::Proc

namespace Ombrel::PhotoCore
{

namespace
{

using SizeModes = Proc::SettingsResizer::SizeModes;

// Where a frame without an aspect is reported. Callers see the place; so its numbers stay as they are, whatever becomes of the
// lines of this file.
constexpr ThrowLocation DESERIALIZE_LOCATION{"Proc/EffectSettings/ResizeSettings", 105, "Deserialize", 96};

std::string MakeImplName()
{
    return Proc::ImplNames::FFMPEG_NAME;
}

} // namespace

OMBREL_EARLY_INIT const std::string ResizeSettings::FRAME_SIZE_MODE{"frameSize"};
OMBREL_EARLY_INIT const std::string ResizeSettings::SCALE_FACTOR{"scaleFactor"};
OMBREL_EARLY_INIT const std::string ResizeSettings::MODE{"resizeMode"};
OMBREL_EARLY_INIT const std::string ResizeSettings::METHOD{"resizeMethod"};
OMBREL_EARLY_INIT const std::string ResizeSettings::UOM{"UOM"};

const Proc::RecordSchema& ResizeSettings::Schema() noexcept
{
    using namespace Proc;
    using R = ResizeSettings;
    return Describe<R, FieldList<FieldDescriptor<&R::m_resolution>, FieldDescriptor<&R::m_uom>,
                                 FieldDescriptor<&R::m_frameInfo>, FieldDescriptor<&R::m_scaleFactor>>>();
}

ResizeSettings::ResizeSettings() = default;
ResizeSettings::ResizeSettings(const ResizeSettings&) = default;
ResizeSettings::ResizeSettings(ResizeSettings&&) noexcept = default;
ResizeSettings& ResizeSettings::operator=(const ResizeSettings&) = default;
ResizeSettings& ResizeSettings::operator=(ResizeSettings&&) noexcept = default;
ResizeSettings::~ResizeSettings() = default;

const std::string& ResizeSettings::GetClassId() const
{
    return EffectSettingsImpl::GetClassId();
}

const std::string& ResizeSettings::GetImplName() const
{
    return Lasting<&MakeImplName>();
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
            ThrowException("Aspect is not specified", DESERIALIZE_LOCATION);
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
