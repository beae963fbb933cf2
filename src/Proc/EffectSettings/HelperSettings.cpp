#include "Proc/EffectSettings/HelperSettings.h"

#include "OmbrelLasting.h"
#include "Proc/Reflection/Folds.h"

#include <utility>

namespace Ombrel::Proc
{

using PhotoCore::HelperSettings;

template <> struct EnumNames<HelperSettings::ApplySetting>
{
    using E = HelperSettings::ApplySetting;

    static constexpr EnumNameRow ROWS[] = {
        {"Invalid", E::Invalid},
        {"ApplyToMaskOnly", E::ApplyToMaskOnly},
        {"ApplyWithMask", E::ApplyWithMask},
        {"ApplyAndSetMask", E::ApplyAndSetMask},
        {"ApplyStop", E::ApplyStop},
        {"ApplyToAlpha", E::ApplyToAlpha},
        {"ApplyAndAddToUndo", E::ApplyAndAddToUndo},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

} // namespace Ombrel::Proc

namespace Ombrel::PhotoCore
{
namespace
{

std::string MakeClassId()
{
    return "HelperSettings";
}

} // namespace

const Proc::RecordSchema& HelperSettings::Schema() noexcept
{
    using namespace Proc;
    using R = HelperSettings;
    return Describe<R, FieldList<FieldDescriptor<&R::m_undoSet>, FieldDescriptor<&R::m_applyMode>,
                                 FieldDescriptor<&R::m_maxWidth>, FieldDescriptor<&R::m_maxHeight>>>();
}

HelperSettings::HelperSettings() = default;
HelperSettings::HelperSettings(const HelperSettings&) = default;
HelperSettings::HelperSettings(HelperSettings&&) noexcept = default;
HelperSettings& HelperSettings::operator=(const HelperSettings&) = default;
HelperSettings& HelperSettings::operator=(HelperSettings&&) noexcept = default;
HelperSettings::~HelperSettings() = default;

const std::string& HelperSettings::GetClassId() const
{
    return Lasting<&MakeClassId>();
}

void HelperSettings::Serialize(PropertyTree& tree) const
{
    constexpr Proc::WriteFlags flags{.resetTargets = true, .omitDefaults = true};
    Proc::Codec<HelperSettings>::Write(tree, *this, &flags);
}

void HelperSettings::Deserialize(const PropertyTree& tree)
{
    constexpr Proc::ReadFlags flags{.resetMissing = true};
    Proc::Codec<HelperSettings>::Read(tree, *this, &flags);
}

bool HelperSettings::operator==(const PhotoUtil::ISerializable& other) const
{
    return ISerializable::operator==(other) && operator==(dynamic_cast<const HelperSettings&>(other));
}

bool HelperSettings::operator==(const HelperSettings& other) const
{
    return ISerializable::operator==(other) && Proc::Reflected<HelperSettings>::Equal(*this, other);
}

void HelperSettings::SetApplyMode(std::set<ApplySetting> value)
{
    m_applyMode = std::move(value);
}

void HelperSettings::SetApplyModeFlag(ApplySetting flag, bool isSet)
{
    if (isSet)
    {
        m_applyMode.insert(flag);
    }
    else
    {
        m_applyMode.erase(flag);
    }
}

} // namespace Ombrel::PhotoCore
