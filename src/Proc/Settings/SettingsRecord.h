#ifndef OMBREL_PROC_SETTINGS_SETTINGS_RECORD_H
#define OMBREL_PROC_SETTINGS_SETTINGS_RECORD_H

#include "Proc/Settings/Settings.h"

#include <string>

namespace Ombrel::Proc
{

/// Gives a record its virtual operations, made of its `CLASS_ID`, its copy constructor and its `operator==`.
template <class Record, class Base = Settings> class SettingsRecord : public Base
{
public:
    using Base::Base;

    const std::string& GetClassId() const override { return Record::CLASS_ID; }

    Settings* Clone() const override { return new Record(static_cast<const Record&>(*this)); }

    /// Evaluates `other == *this`.
    /// @throws std::bad_cast if `other` is a record of another type
    bool IsEqualTo(const Settings& other) const override
    {
        return dynamic_cast<const Record&>(other) == static_cast<const Record&>(*this);
    }
};

} // namespace Ombrel::Proc

#endif
