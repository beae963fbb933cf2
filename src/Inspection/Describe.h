#ifndef OMBREL_INSPECTION_DESCRIBE_H
#define OMBREL_INSPECTION_DESCRIBE_H

#include "OmbrelExport.h"
#include "Proc/EffectSettings/IEffectSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::Inspection
{

/// How a value stands in a tree.
enum class ValueForm : std::uint8_t
{
    Integer,
    Float,
    Bool,
    Text,
    Name,      // of an enumeration
    Colour,    // a text of eight hexadecimal digits
    ColourMap, // a list of maps with "key", an integer from 0 to 255, and "value", a colour
    Record,    // a map
    List,
    Set,    // a list without repeats
    Effect, // a map with "name", or null
    Other,  // as only the code of the caller's class knows
};

/// One name of an enumeration.
struct DescribedName
{
    std::string name;        // as it is stored
    std::int32_t number = 0; // the value of the enumeration

    bool operator==(const DescribedName&) const = default;
};

/// What kind of value stands under a key or in a list.
struct ValueDescription
{
    /// How it stands in a tree.
    ValueForm form = ValueForm::Other;
    std::uint8_t bits = 0;            // of an integer or a float: 8, 32 or 64
    bool isSigned = false;            // of an integer; one of 64 bits without a sign is stored as the signed one of its bits
    bool takesNumbers = false;        // of a name: an integer is read too, as the number of a name
    std::int32_t fallback = 0;        // of a name: the number that an unknown name reads as; not each has a name
    std::vector<DescribedName> names; // of a name
    std::string record;               // of a record: which one, to be found by `FindRecord`
    std::vector<ValueDescription> element; // of a list or a set: one
};

/// "uint32", "list of Face": the form with its width and sign, and what it is made of.
OMBREL_INSPECTION_API std::string TextOf(const ValueDescription& value);

/// One key of a map.
struct FieldDescription
{
    std::string key;        // as it stands in the map
    ValueDescription value; // what may stand under it

    /// What is read where the key is missing, with every key of the records in it. A record within has this default where its
    /// whole map is missing. Where a key is missing in a map that is there, that key takes the default that the description of
    /// the record has. Null for an effect, and where the code of a caller's class fails.
    PropertyTree defaultValue;

    /// Whether `==` of two effects of the class looks at it, as far as values show that were tried. Nothing where the code of a
    /// caller's class fails.
    std::optional<bool> isCompared;

    bool isAlwaysWritten = false; // also where it has its default

    /// Whether some values, or some beside others, are written otherwise than they are read, as far as was tried. Of a record
    /// and of a list of them its own fields say so.
    bool isComputed = false;

    std::string access; // the data member that holds it, or its setter and getter
};

/// What a record or a settings class holds beside its keys. It is never stored: an effect that is read has the default.
struct KeylessMember
{
    std::string member;       // a data member, or a setter and a getter
    std::string type;         // for people: a kind of the stored form, or a type of C++
    std::string defaultValue; // for people
    bool isCompared = false;  // whether `==` looks at it

    bool operator==(const KeylessMember&) const = default;
};

/// A record that stands in an effect.
struct RecordDescription
{
    std::string name;                     // no two of one effect have the same
    std::vector<FieldDescription> fields; // in the order of reading
    std::vector<KeylessMember> members;   // what it holds beside them
};

/// What is known of the effects of one class.
struct EffectDescription
{
    /// As it stands under "name".
    std::string classId;
    std::string className; // empty for a class that is known by its factory alone

    bool isRegistered = false; // whether it is made by its class id, so that its trees can be read

    /// Whether `fields` and `members` say all. It is false for a caller's class without a field list: only the first two keys
    /// are known.
    bool areKeysKnown = false;

    // Asked of an effect; as in a new `EffectDescription` where none can be made.
    std::optional<PhotoCore::IEffectSettings::InputType> inputs; // how many images it takes
    bool isAdditive = false;                                     // as `IEffectSettings::IsAdditive`
    bool hasPropertyAccess = false;                              // whether `GetPropertyAccess` returns one

    /// Every key but "name", in the order of reading: "implName", "helperSettings", then the keys of the class.
    std::vector<FieldDescription> fields;
    std::vector<KeylessMember> members;

    /// The records that stand in the effect, each once. Effects that stand in it are not among them.
    std::vector<RecordDescription> records;

    /// Null for an unknown name. Belongs to this description.
    OMBREL_INSPECTION_API const RecordDescription* FindRecord(std::string_view name) const noexcept;
};

/// What can stand in a tree of the class, and what its effects do with it; nothing for an unknown id. It makes effects of the
/// class and tries values, which takes up to some milliseconds.
///
/// Threads: any number may describe classes at once.
/// @throws std::bad_alloc and nothing else, whatever the code of a caller's class throws
OMBREL_INSPECTION_API std::optional<EffectDescription> Describe(std::string_view classId);

} // namespace Ombrel::Inspection

#endif
