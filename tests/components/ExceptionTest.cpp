#include "Exception/Exception.h"

#include <gtest/gtest.h>

#include <boost/throw_exception.hpp>

#include <type_traits>

namespace
{

using Ombrel::Exception;

constexpr Ombrel::ThrowLocation LOCATION{"Some/File", 12, "SomeFunction", 34};

static_assert(std::is_base_of_v<std::exception, Exception> && std::is_base_of_v<boost::exception, Exception>);
static_assert(std::is_default_constructible_v<Exception> && std::is_copy_constructible_v<Exception>);
static_assert(std::has_virtual_destructor_v<Exception>);

TEST(Exception, CarriesDescriptionStackAndPlace)
{
    try
    {
        Ombrel::ThrowException("what went wrong", LOCATION);
        FAIL();
    }
    catch (const boost::wrapexcept<Exception>& failure)
    {
        ASSERT_TRUE(boost::get_error_info<Ombrel::ErrorDescription>(failure));
        EXPECT_EQ(*boost::get_error_info<Ombrel::ErrorDescription>(failure), "what went wrong");
        ASSERT_TRUE(boost::get_error_info<Ombrel::ErrorCallStack>(failure));
        EXPECT_EQ(*boost::get_error_info<Ombrel::ErrorCallStack>(failure), Ombrel::GetCallStack());
        EXPECT_STREQ(*boost::get_error_info<boost::throw_file>(failure), "Some/File");
        EXPECT_STREQ(*boost::get_error_info<boost::throw_function>(failure), "SomeFunction");
        EXPECT_EQ(*boost::get_error_info<boost::throw_line>(failure), 12);
    }
}

TEST(Exception, IsCaughtByEachOfItsBases)
{
    EXPECT_THROW(Ombrel::ThrowException("", LOCATION), Exception);
    EXPECT_THROW(Ombrel::ThrowException("", LOCATION), std::exception);
    EXPECT_THROW(Ombrel::ThrowException("", LOCATION), boost::exception);
}

TEST(Exception, ACopyKeepsWhatIsAttached)
{
    Exception exception;
    exception << Ombrel::ErrorDescription("text");
    const Exception copy = exception;
    EXPECT_EQ(*boost::get_error_info<Ombrel::ErrorDescription>(copy), "text");
    EXPECT_FALSE(boost::get_error_info<Ombrel::ErrorCallStack>(copy));
}

TEST(Exception, HasNoMessageOfItsOwn)
{
    EXPECT_STREQ(Exception().what(), std::exception().what());
    EXPECT_EQ(Ombrel::GetCallStack(), "");
}

} // namespace
