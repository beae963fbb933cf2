// A settings class that stores its own members shares its map with the effect just as a record does.

#include "Record.h"

#include "Proc/EffectSettings/EffectSettingsBody.h"

class OwnSettings : public Ombrel::PhotoCore::EffectSettingsOneInputReflection<Record, OwnSettings>
{
public:
    std::int32_t m_columns = 0;
    std::string m_layout;
    std::string m_implName; // hides the effect's own
};

template <> struct Ombrel::Proc::Fields<OwnSettings>
{
#ifdef MUST_FAIL
    using List = FieldList<FieldDescriptor<&OwnSettings::m_columns>, FieldDescriptor<&OwnSettings::m_implName>>;
#else
    using List = FieldList<FieldDescriptor<&OwnSettings::m_columns>, FieldDescriptor<&OwnSettings::m_layout>>;
#endif
};

template struct Ombrel::Proc::Reflected<OwnSettings>;
