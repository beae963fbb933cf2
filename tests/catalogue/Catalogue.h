#ifndef OMBREL_TESTS_CATALOGUE_CATALOGUE_H
#define OMBREL_TESTS_CATALOGUE_CATALOGUE_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What every settings class must be, written by hand and never taken from the library. A row says it all; the rules that hold
// for all classes are loops over the rows.
namespace Catalogue
{

enum class Kind : std::uint8_t
{
    Int32,
    UInt32,
    UInt8,
    UInt64,
    Int64,
    Float64,
    Float32,
    Bool,
    String,
    Enum,
    Color,
    Record,
    List,
    Set,
    ColorMap,
    EffectList,
};

struct EnumName
{
    std::string_view name;
    std::int32_t value;
};

/// Reads an enumeration's number out of an effect's record.
using NumberOf = std::function<std::int32_t(const Ombrel::PhotoCore::IEffectSettings&)>;

struct Field
{
    std::string key;
    Kind kind;
    Ombrel::PropertyTree defaultValue; // the full stored form, no nested key left out
    Ombrel::PropertyTree sample;       // another value, stored as given
    std::vector<Field> nested;         // of a record: its fields, each with the nested record's own default
    std::vector<EnumName> names;       // of an enumeration, or of the elements of a list or set
    std::int32_t fallback = 0;
    NumberOf number;
    bool takesNumbers = false; // of an enumeration: whether an integer is read as its number

    bool isCompared = true; // whether the effect's comparison looks at it
    double tolerance = 0.0; // of a float: values that differ by less are equal; at 0, only equal values are
    std::optional<std::pair<double, double>> range = std::nullopt; // of a number: the least and the most that its setter keeps
    bool isScaled = false; // whether it is shown times the effect's intensity, and comes back as set only where that is 1
    bool isAlwaysWritten = false; // whether a nested record stands in the tree even by default, as an empty map
    bool isAppended = false; // whether a read adds to what is there, so that the empty default of a missing key adds nothing

    // Of a key that stores nothing itself: the key that a value given here goes to, and what the sample makes of that. What
    // was read there before is lost.
    std::string target = {};
    Ombrel::PropertyTree targetValue = {};
};

Field Int32(std::string key, std::int32_t defaultValue);
Field UInt32(std::string key, std::uint32_t defaultValue);
Field UInt8(std::string key, std::uint8_t defaultValue);
Field Int64(std::string key, std::int64_t defaultValue);
Field Float64(std::string key, double defaultValue);
Field Float32(std::string key, float defaultValue);
Field Bool(std::string key, bool defaultValue);
Field String(std::string key, std::string defaultValue);
Field Color(std::string key, std::string defaultValue);
Field Enum(std::string key, std::string defaultValue, std::vector<EnumName> names, std::int32_t fallback, NumberOf number);

/// A nested record whose default in the enclosing record is its own, but for the keys in `overrides`.
Field Record(std::string key, std::vector<Field> nested,
             std::initializer_list<std::pair<std::string_view, Ombrel::PropertyTree>> overrides = {});

/// Reads a number through a getter or a data member of the record of the settings class `Class`.
template <class Class, auto Member> std::int32_t NumberIn(const Ombrel::PhotoCore::IEffectSettings& effect)
{
    return static_cast<std::int32_t>(std::invoke(Member, dynamic_cast<const Class&>(effect).GetTypedSettings()));
}

/// The names of the pixel formats, whose fallback is -1.
std::vector<EnumName> PixFmtNames();

/// The fields of records that stand alone and in other records. Within those nobody reads the numbers.
std::vector<Field> MaskFields(NumberOf shape = nullptr, NumberOf thresholdMode = nullptr);
std::vector<Field> NoiseFields(NumberOf method = nullptr);
std::vector<Field> RadialBlurFields(NumberOf mode = nullptr);
std::vector<Field> TransposeFields(NumberOf angle = nullptr);

/// Any other field, such as a list, with its two values in full stored form.
Field Other(std::string key, Kind kind, Ombrel::PropertyTree defaultValue, Ombrel::PropertyTree sample);

/// The same list or set, whose elements are of an enumeration.
Field OfNames(Field field, std::vector<EnumName> names, std::int32_t fallback);

/// The same field, left out of the effect's comparison.
Field NotCompared(Field field);

/// The same float, two values of which are equal if they differ by less than `tolerance`.
Field Tolerant(Field field, double tolerance);

/// The same number, which its setter brings to the nearest value from `least` to `most`.
Field Within(Field field, double least, double most);

/// The same field, a list that a read extends.
Field Appended(Field field);

/// The same field, a nested record that is stored even by default.
Field AlwaysWritten(Field field);

/// The same field, shown times the effect's intensity.
Field Scaled(Field field);

/// The same field, whose values go to another key: its sample becomes `targetValue` there.
Field Redirected(Field field, std::string target, Ombrel::PropertyTree targetValue);

/// The same enumeration, which also reads an integer as its number.
Field TakingNumbers(Field field);

enum class Place : std::int32_t
{
    Factory = 0, // registered after the start-up list
    None = -1,   // not registered
};

using Keys = std::vector<std::string>;

struct Effect
{
    std::string className;
    std::string classId;
    Ombrel::PhotoCore::IEffectSettings::InputType inputType;
    Place place; // in the start-up list, from 1; a new class is its last
    std::vector<Field> fields;

    // Of a default object.
    bool isEmpty = false;
    bool isRecordEmpty = false;

    // Of a record that is empty by default: the keys whose samples, each alone, end that. Without a list every key does.
    std::optional<Keys> filledBy = std::nullopt;

    bool isAdditive = false;
    bool hasPropertyAccess = true;
    bool equalsItsCopy = true;
    bool isClonedWhole = true; // with implementation name and helper settings
};

/// Names the row in a failed test.
void PrintTo(const Effect& effect, std::ostream* out);

/// All rows, in no particular order.
const std::vector<Effect>& All();

/// The rows, grouped as the pages of the reference; the rows of its page on colour are in two files.
std::vector<Effect> ArtisticRows();
std::vector<Effect> BlurAndDetailRows();
std::vector<Effect> ColourCorrectionRows();
std::vector<Effect> ColourMappingRows();
std::vector<Effect> FaceRows();
std::vector<Effect> FrameworkRows();
std::vector<Effect> GeometryRows();
std::vector<Effect> MaskRows();
std::vector<Effect> NeuralRows();

/// A map of all keys with their defaults, as property access shows them.
Ombrel::PropertyTree DefaultForm(const std::vector<Field>& fields);

} // namespace Catalogue

#endif
