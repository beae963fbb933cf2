#ifndef OMBREL_PROC_SETTINGS_SETTINGS_RECORD_H
#define OMBREL_PROC_SETTINGS_SETTINGS_RECORD_H

#include "OmbrelCompiler.h"
#include "Proc/Settings/Settings.h"

#include <string>

namespace Ombrel::Proc
{

/// Gives a record its virtual operations, made of its `CLASS_ID`, its copy constructor and its `operator==`.
template <class Record, class Base = Settings> class SettingsRecord : public Base
{
public:
    using Base::Base;

    /// For a caller's record that is not used before its `CLASS_ID` is constructed. This library's records override it.
    const std::string& GetClassId() const override { return Record::CLASS_ID; }

    /// A new copy, which the caller owns.
    OMBREL_COLD Settings* Clone() const override { return new Record(static_cast<const Record&>(*this)); }

    /// Evaluates `other == *this`.
    /// @throws std::bad_cast if `other` is a record of another type
    OMBREL_COLD bool IsEqualTo(const Settings& other) const override
    {
        return dynamic_cast<const Record&>(other) == static_cast<const Record&>(*this);
    }
};

/// Compares two records of the type that `schema` describes, field by field, each by its own `==`.
OMBREL_API bool AreFieldsEqual(const RecordSchema& schema, const void* a, const void* b);

/// Gives a record the comparison of all its fields. A record that declares an `operator==` does not take this base.
template <class Record> class ComparedByFields : public Settings
{
public:
    /// Whether all fields are equal.
    friend bool operator==(const Record& a, const Record& b) { return AreFieldsEqual(Record::Schema(), &a, &b); }
};

/// The base of a record whose comparison looks at all its fields.
template <class Record> using ComparedRecord = SettingsRecord<Record, ComparedByFields<Record>>;

} // namespace Ombrel::Proc

#endif
