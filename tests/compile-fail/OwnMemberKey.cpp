// A settings class that stores its own members shares its map with the effect just as a record does.

#include "Record.h"

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Reflection/Folds.h"

class OwnSettings : public Ombrel::PhotoCore::EffectSettingsOneInputReflection<Record, OwnSettings>
{
public:
    static const Ombrel::Proc::RecordSchema& Schema() noexcept;

    std::int32_t m_columns = 0;
    std::string m_layout;
    std::string m_implName; // hides the effect's own
};

const Ombrel::Proc::RecordSchema& OwnSettings::Schema() noexcept
{
    using namespace Ombrel::Proc;
#ifdef MUST_FAIL
    return Describe<OwnSettings,
                    FieldList<FieldDescriptor<&OwnSettings::m_columns>, FieldDescriptor<&OwnSettings::m_implName>>>();
#else
    return Describe<OwnSettings,
                    FieldList<FieldDescriptor<&OwnSettings::m_columns>, FieldDescriptor<&OwnSettings::m_layout>>>();
#endif
}
