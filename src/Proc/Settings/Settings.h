#ifndef OMBREL_PROC_SETTINGS_SETTINGS_H
#define OMBREL_PROC_SETTINGS_SETTINGS_H

#include "OmbrelExport.h"
#include "Proc/Settings/StoredKeys.h"

#include <concepts>
#include <string>

namespace Ombrel::Proc
{

struct RecordSchema;

/// The base of every record: the plain parameters of one effect. The order of the virtual operations is fixed.
class OMBREL_API Settings
{
public:
    /// No field of a record may have one of these keys.
    static constexpr const auto& RESERVED_KEYS = StoredKeys::RESERVED;

    /// The class id of the effect that the record belongs to.
    virtual const std::string& GetClassId() const = 0;

    Settings(const Settings&) = default;
    Settings& operator=(const Settings&) = default;
    virtual ~Settings() = default;

    /// A new copy, which the caller owns.
    virtual Settings* Clone() const = 0;

    /// Whether this record equals `other`.
    /// @throws std::bad_cast if `other` is a record of another type
    virtual bool IsEqualTo(const Settings& other) const = 0;

    /// True if the record counts as empty. False here; a record that overrides it says when it is empty. A record that keeps
    /// its members to itself is empty when it is as by default. With any other value it is not, even if its effect would do
    /// nothing.
    virtual bool IsEmpty() const;

    /// Does nothing; no record overrides it.
    virtual void Deserialize(const std::string& text);

protected:
    Settings() = default;
};

/// Records of two types do not compare, though both may be converted to a base that does.
template <std::derived_from<Settings> A, std::derived_from<Settings> B>
requires(!std::same_as<A, B>) bool operator==(const A&, const B&) = delete;

} // namespace Ombrel::Proc

#endif
