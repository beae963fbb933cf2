#ifndef OMBREL_PROC_REFLECTION_SPELLED_NAME_H
#define OMBREL_PROC_REFLECTION_SPELLED_NAME_H

#include "OmbrelExport.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace Ombrel::Proc
{
namespace SpelledNameDetail
{

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

constexpr bool IsNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

constexpr std::string_view LastName(std::string_view spelling)
{
    std::size_t end = spelling.size();
    while (!IsNameCharacter(spelling[end - 1]))
    {
        --end;
    }
    std::size_t begin = end;
    while (IsNameCharacter(spelling[begin - 1]))
    {
        --begin;
    }
    return spelling.substr(begin, end - begin);
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

template <std::size_t Size> consteval std::array<char, Size> CopyOf(std::string_view text)
{
    std::array<char, Size> copy{};
    for (std::size_t i = 0; i != Size; ++i)
    {
        copy[i] = text[i];
    }
    return copy;
}

// The copy keeps the long name of the function out of the binary.
template <const char* (*Spelled)()> struct Name
{
    static constexpr std::string_view SOURCE = LastName(Spelled());
    static constexpr auto TEXT = CopyOf<SOURCE.size()>(SOURCE);
    static constexpr std::string_view VIEW{TEXT.data(), TEXT.size()};
};

template <auto First, auto Second> struct Pair
{
    static constexpr std::string_view FIRST = LastName(Spelling<First>());
    static constexpr std::string_view SECOND = LastName(Spelling<Second>());
    static constexpr std::string_view SEPARATOR = ", ";
    static constexpr std::size_t SIZE = FIRST.size() + SEPARATOR.size() + SECOND.size();

    static constexpr std::array<char, SIZE> TEXT = []
    {
        std::array<char, SIZE> text{};
        std::size_t end = 0;
        for (const std::string_view part : {FIRST, SEPARATOR, SECOND})
        {
            for (const char c : part)
            {
                text[end++] = c;
            }
        }
        return text;
    }();

    static constexpr std::string_view VIEW{TEXT.data(), TEXT.size()};
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
