#ifndef OMBREL_BENCHMARKS_CONSTANT_H
#define OMBREL_BENCHMARKS_CONSTANT_H

namespace Ombrel::Benchmarks
{

/// A text that lives as long as the program, such as the name of an enumerator: a document that can refers to it.
struct Constant
{
    const char* text;
};

/// What a document without references takes in its place.
template <class Value> const Value& Plain(const Value& value)
{
    return value;
}

inline const char* Plain(const Constant& constant)
{
    return constant.text;
}

} // namespace Ombrel::Benchmarks

#endif
