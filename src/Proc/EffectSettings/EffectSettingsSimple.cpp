#include "Proc/EffectSettings/EffectSettingsSimple.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/Settings.h"

#include <stdexcept>
#include <utility>

namespace Ombrel::PhotoCore
{
namespace
{

// Stands in where there is no record to ask.
class NoRecord : public Proc::Settings
{
public:
    const std::string& GetClassId() const override { return Proc::ClassIdOf<EffectSettingsSimple>(); }
    Settings* Clone() const override { return new NoRecord(*this); }
    bool IsEmpty() const override { return true; }

    bool IsEqualTo(const Settings& other) const override
    {
        static_cast<void>(dynamic_cast<const NoRecord&>(other)); // any two are equal, another type is refused
        return true;
    }
};

NoRecord MakeNoRecord()
{
    return {};
}

} // namespace

OMBREL_EARLY_INIT const std::string EffectSettingsSimple::CLASS_ID = Proc::ClassIdText(CLASS_NAME);

EffectSettingsSimple::EffectSettingsSimple() : EffectSettingsSimple(InputType::One) {}

EffectSettingsSimple::EffectSettingsSimple(InputType type, std::shared_ptr<Proc::Settings> record)
    : inputType(type), settings(std::move(record))
{
}

EffectSettingsSimple::EffectSettingsSimple(const EffectSettingsSimple&) = default;
EffectSettingsSimple::EffectSettingsSimple(EffectSettingsSimple&&) noexcept = default;
EffectSettingsSimple& EffectSettingsSimple::operator=(const EffectSettingsSimple&) = default;
EffectSettingsSimple& EffectSettingsSimple::operator=(EffectSettingsSimple&&) noexcept = default;
EffectSettingsSimple::~EffectSettingsSimple() = default;

std::shared_ptr<EffectSettingsSimple> EffectSettingsSimple::Create(const std::shared_ptr<Proc::Settings>& record)
{
    return Create(InputType::One, record);
}

std::shared_ptr<EffectSettingsSimple> EffectSettingsSimple::Create(InputType type, std::shared_ptr<Proc::Settings> record)
{
    return std::make_shared<EffectSettingsSimple>(type, std::move(record));
}

std::shared_ptr<IEffectSettings> EffectSettingsSimple::CreateBase()
{
    return std::make_shared<EffectSettingsSimple>();
}

const std::string& EffectSettingsSimple::GetClassId() const
{
    return Proc::ClassIdOf<EffectSettingsSimple>();
}

std::shared_ptr<IEffectSettings> EffectSettingsSimple::Clone() const
{
    return std::make_shared<EffectSettingsSimple>(*this);
}

const Proc::Settings& EffectSettingsSimple::GetEffectSettings() const
{
    return settings ? static_cast<const Proc::Settings&>(*settings) : Lasting<&MakeNoRecord>();
}

Proc::Settings& EffectSettingsSimple::GetEffectSettingsRef()
{
    if (!settings)
    {
        throw std::logic_error("a simple effect without a record has nothing to change");
    }
    return *settings;
}

IEffectSettings::InputType EffectSettingsSimple::GetInputType()
{
    return inputType;
}

void EffectSettingsSimple::SetEffectSettings(const Proc::Settings& other)
{
    GetEffectSettingsRef().Proc::Settings::operator=(other);
}

void EffectSettingsSimple::Add(const IEffectSettings&) {}

bool EffectSettingsSimple::operator==(const IEffectSettings&) const
{
    return false;
}

bool EffectSettingsSimple::operator==(const EffectSettingsSimple&) const
{
    return false;
}

void EffectSettingsSimple::SetInputType(InputType type)
{
    inputType = type;
}

void EffectSettingsSimple::SetImplName(const std::string& name)
{
    m_implName = name;
}

} // namespace Ombrel::PhotoCore
