#include "Proc/EffectSettings/EffectSettingsSimple.h"

#include "Proc/Settings/SettingsRecord.h"

#include <stdexcept>
#include <utility>

namespace Ombrel::PhotoCore
{
namespace
{

// Stands in where there is no record to ask.
class NoRecord : public Proc::SettingsRecord<NoRecord>
{
public:
    static const std::string& CLASS_ID;

    bool IsEmpty() const override { return true; }
    bool operator==(const NoRecord&) const { return true; }
};

const std::string& NoRecord::CLASS_ID = EffectSettingsSimple::CLASS_ID;

} // namespace

const std::string EffectSettingsSimple::CLASS_ID{CLASS_NAME};

EffectSettingsSimple::EffectSettingsSimple(InputType type, std::shared_ptr<Proc::Settings> record)
    : inputType(type), settings(std::move(record))
{
}

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
    return CLASS_ID;
}

std::shared_ptr<IEffectSettings> EffectSettingsSimple::Clone() const
{
    return std::make_shared<EffectSettingsSimple>(*this);
}

const Proc::Settings& EffectSettingsSimple::GetEffectSettings() const
{
    static const NoRecord noRecord;
    return settings ? static_cast<const Proc::Settings&>(*settings) : noRecord;
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
