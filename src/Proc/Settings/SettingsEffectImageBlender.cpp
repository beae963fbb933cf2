#include "Proc/Settings/SettingsEffectImageBlender.h"

#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{
namespace
{

using Blender = SettingsEffectColorBlender;

void SetAlpha(SettingsEffectImageBlender& record, std::int32_t value)
{
    record.SetIntensity(static_cast<float>(value) / 255.0f);
}

// Sets the intensity as "alpha" does, and not the mode: what is stored has always been read so.
void SetFromBlendingMode(SettingsEffectImageBlender& record, Blender::BlendingMode value)
{
    SetAlpha(record, static_cast<std::int32_t>(value));
}

} // namespace

OMBREL_EARLY_INIT const std::string SettingsEffectImageBlender::CLASS_ID = ClassIdText(CLASS_NAME);

SettingsEffectImageBlender::SettingsEffectImageBlender() = default;
SettingsEffectImageBlender::SettingsEffectImageBlender(const SettingsEffectImageBlender&) = default;
SettingsEffectImageBlender::SettingsEffectImageBlender(SettingsEffectImageBlender&&) noexcept = default;
SettingsEffectImageBlender& SettingsEffectImageBlender::operator=(const SettingsEffectImageBlender&) = default;
SettingsEffectImageBlender& SettingsEffectImageBlender::operator=(SettingsEffectImageBlender&&) noexcept = default;
SettingsEffectImageBlender::~SettingsEffectImageBlender() = default;

const std::string& SettingsEffectImageBlender::GetClassId() const
{
    return ClassIdOf<SettingsEffectImageBlender>();
}

template <> struct EnumNames<Blender::BlendingMode>
{
    using E = Blender::BlendingMode;

    static constexpr EnumNameRow ROWS[] = {
        {"Default", E::Default},
        {"KeepDstAlpha", E::KeepDstAlpha},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectImageBlender::Schema() noexcept
{
    using R = SettingsEffectImageBlender;
    return Describe<R, FieldList<AccessorDescriptor<"positionX", &R::SetPositionX, &R::GetPositionX>,
                                 AccessorDescriptor<"positionY", &R::SetPositionY, &R::GetPositionY>,
                                 AccessorDescriptor<"alpha", &SetAlpha, &R::GetAlpha>,
                                 AccessorDescriptor<"blendingMode", &SetFromBlendingMode, &R::GetBlendingMode>>>();
}

bool SettingsEffectImageBlender::IsEmpty() const
{
    return *this == Reflected<SettingsEffectImageBlender>::Default();
}

} // namespace Ombrel::Proc
