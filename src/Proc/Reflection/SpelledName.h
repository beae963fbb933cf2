#ifndef OMBREL_PROC_REFLECTION_SPELLED_NAME_H
#define OMBREL_PROC_REFLECTION_SPELLED_NAME_H

#include "OmbrelExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace Ombrel::Proc
{
namespace SpelledNameDetail
{

constexpr bool IsNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

#if defined(__GNUC__) || defined(__clang__)

// The compiler gives the template argument in the function's name: "... [with auto Member = &Record::m_radius]". The functions
// must not return a class, whose name would follow the argument.
template <auto Member> constexpr const char* Spelling()
{
    return __PRETTY_FUNCTION__;
}

template <class Type> constexpr const char* Spelling()
{
    return __PRETTY_FUNCTION__;
}

constexpr const char* EndOfNames(const char* spelling)
{
    return spelling + __builtin_strlen(spelling);
}

#else

// Microsoft's compiler spells a member pointer as a number, but the address of a member by name: "const char *__cdecl
// Ombrel::...::SpelledAddress<&Ombrel::...::AN_OBJECT<struct Record>->m_radius>(void)". A function is spelled with its
// parameters. The object is only named: it exists nowhere.
template <class Record> extern const Record AN_OBJECT;

template <class Type> constexpr const char* Spelling()
{
    return __FUNCSIG__;
}

template <const auto* Address> constexpr const char* SpelledAddress()
{
    return __FUNCSIG__;
}

template <auto Function> constexpr const char* SpelledFunction()
{
    return __FUNCSIG__;
}

template <class Record, class Value> Record RecordOf(Value Record::*);

template <auto Member> constexpr const char* Spelling()
{
    if constexpr (std::is_member_function_pointer_v<decltype(Member)>)
    {
        return SpelledFunction<Member>();
    }
    else
    {
        return SpelledAddress<&(AN_OBJECT<decltype(RecordOf(Member))>.*Member)>();
    }
}

// Behind the argument stands ">(void)", and in front of that the parameters of a function.
constexpr const char* EndOfNames(const char* spelling)
{
    const char* end = spelling + std::char_traits<char>::length(spelling);
    while (*--end != '>')
    {
    }
    const char* last = end;
    while (last[-1] == ' ' || IsNameCharacter(last[-1])) // "const", "noexcept"
    {
        --last;
    }
    if (last[-1] != ')')
    {
        return end;
    }
    int open = 0;
    do
    {
        --last;
        open += *last == ')' ? 1 : *last == '(' ? -1 : 0;
    } while (open != 0);
    return last;
}

#endif

constexpr std::string_view LastName(const char* spelling)
{
    const char* end = EndOfNames(spelling);
    while (!IsNameCharacter(end[-1]))
    {
        --end;
    }
    const char* begin = end;
    while (IsNameCharacter(begin[-1]))
    {
        --begin;
    }
    return {begin, static_cast<std::size_t>(end - begin)};
}

constexpr std::string_view WithoutPrefix(std::string_view name)
{
    return name.starts_with("m_") ? name.substr(2) : name;
}

struct Probe
{
    void Function();

    int m_member;
};

static_assert(LastName(Spelling<&Probe::m_member>()) == "m_member", "this compiler spells member pointers in another way");
static_assert(LastName(Spelling<&Probe::Function>()) == "Function", "this compiler spells member functions in another way");
static_assert(LastName(Spelling<Probe>()) == "Probe", "this compiler spells types in another way");

constexpr char* Append(char* end, std::string_view part)
{
    const char* const text = part.data();
    const std::size_t size = part.size();
    for (std::size_t i = 0; i != size; ++i)
    {
        end[i] = text[i];
    }
    return end + size;
}

// The copy keeps the long name of the function out of the binary.
template <std::size_t Size> struct Copy
{
    consteval explicit Copy(std::string_view name) { Append(value, name); }
    consteval Copy(std::string_view first, std::string_view second) { Append(Append(Append(value, first), ", "), second); }

    char value[Size]{};
};

template <const char* (*Spelled)()> struct Name
{
    static constexpr std::string_view SOURCE = LastName(Spelled());
    static constexpr Copy<SOURCE.size()> TEXT{SOURCE};
    static constexpr std::string_view VIEW{TEXT.value, SOURCE.size()};
};

template <auto First, auto Second> struct Pair
{
    static constexpr std::string_view FIRST = LastName(Spelling<First>());
    static constexpr std::string_view SECOND = LastName(Spelling<Second>());
    static constexpr Copy<FIRST.size() + 2 + SECOND.size()> TEXT{FIRST, SECOND};
    static constexpr std::string_view VIEW{TEXT.value, sizeof(TEXT.value)};
};

} // namespace SpelledNameDetail

/// The name of a data member or member function: "m_radius" for `&Record::m_radius`.
template <auto Member>
inline constexpr std::string_view MEMBER_NAME = SpelledNameDetail::Name<&SpelledNameDetail::Spelling<Member>>::VIEW;

/// The key of a data member: its name without the prefix, "radius" for `&Record::m_radius`.
template <auto Member> inline constexpr std::string_view MEMBER_KEY = SpelledNameDetail::WithoutPrefix(MEMBER_NAME<Member>);

/// The names of a setter and a getter of a record: "SetHue, GetHue".
template <auto Setter, auto Getter>
inline constexpr std::string_view ACCESSOR_NAMES = SpelledNameDetail::Pair<Setter, Getter>::VIEW;

/// The name of a class that is no template, without its namespace.
template <class Type>
inline constexpr std::string_view TYPE_NAME = SpelledNameDetail::Name<&SpelledNameDetail::Spelling<Type>>::VIEW;

} // namespace Ombrel::Proc

#endif
