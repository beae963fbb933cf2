#ifndef OMBREL_PROC_REFLECTION_SPELLED_NAME_H
#define OMBREL_PROC_REFLECTION_SPELLED_NAME_H

#include <array>
#include <cstddef>
#include <string_view>

namespace Ombrel::Proc
{
namespace SpelledNameDetail
{

// The compiler spells the template argument out in the name of the function: "... [with auto Member = &Record::m_radius]".
// Nothing may follow the argument but brackets, so the functions must not return a class.
template <auto Member> consteval const char* Spelling()
{
    return __PRETTY_FUNCTION__;
}

template <class Type> consteval const char* Spelling()
{
    return __PRETTY_FUNCTION__;
}

consteval bool IsNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

consteval std::string_view LastName(std::string_view spelling)
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

consteval std::string_view WithoutPrefix(std::string_view name)
{
    return name.starts_with("m_") ? name.substr(2) : name;
}

struct Probe
{
    int m_member;
};

static_assert(LastName(Spelling<&Probe::m_member>()) == "m_member", "this compiler spells member pointers in another way");
static_assert(LastName(Spelling<Probe>()) == "Probe", "this compiler spells types in another way");

// An array of its own keeps the long spelling out of the binary.
template <std::size_t Size> consteval std::array<char, Size> CopyOf(std::string_view text)
{
    std::array<char, Size> copy{};
    for (std::size_t i = 0; i != Size; ++i)
    {
        copy[i] = text[i];
    }
    return copy;
}

template <auto Member> struct MemberKey
{
    static constexpr std::string_view SOURCE = WithoutPrefix(LastName(Spelling<Member>()));
    static constexpr auto TEXT = CopyOf<SOURCE.size()>(SOURCE);
};

template <class Type> struct TypeName
{
    static constexpr std::string_view SOURCE = LastName(Spelling<Type>());
    static constexpr auto TEXT = CopyOf<SOURCE.size()>(SOURCE);
};

} // namespace SpelledNameDetail

/// The key of a data member: its name without the prefix, "radius" for `&Record::m_radius`.
template <auto Member>
inline constexpr std::string_view MEMBER_KEY{SpelledNameDetail::MemberKey<Member>::TEXT.data(),
                                             SpelledNameDetail::MemberKey<Member>::TEXT.size()};

/// The name of a class that is no template, without its namespace.
template <class Type>
inline constexpr std::string_view TYPE_NAME{SpelledNameDetail::TypeName<Type>::TEXT.data(),
                                            SpelledNameDetail::TypeName<Type>::TEXT.size()};

} // namespace Ombrel::Proc

#endif
