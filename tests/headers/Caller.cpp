// A caller that makes, copies, moves, assigns and compares an object of every class.

#include "support/AllClasses.h"

#include <type_traits>
#include <utility>

// Only callers that throw or catch failures need Boost.
#ifdef BOOST_CONFIG_HPP
#error "a header of a class includes Boost"
#endif

namespace
{

struct UseEverything
{
    template <class Class> void operator()() const
    {
        if constexpr (std::is_default_constructible_v<Class>)
        {
            Class object{};
            Class copy(object);
            Class moved(std::move(object));
            object = copy;
            copy = std::move(moved);
            [[maybe_unused]] const bool isEqual = copy == object;
        }
    }
};

} // namespace

int main()
{
    Support::ForEach<Support::Records>(UseEverything());
    Support::ForEach<Support::SettingsClasses>(UseEverything());
}
