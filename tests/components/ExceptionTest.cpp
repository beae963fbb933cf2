#include "Exception/Exception.h"

#include <gtest/gtest.h>

#include <boost/throw_exception.hpp>

#include <stdexcept>
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

TEST(DescribeFailure, GivesTheDescription)
{
    try
    {
        Ombrel::ThrowException("what went wrong", LOCATION);
        FAIL();
    }
    catch (const std::exception& failure)
    {
        EXPECT_EQ(Ombrel::DescribeFailure(failure), "what went wrong");
    }
    Exception exception;
    exception << Ombrel::ErrorDescription("");
    EXPECT_EQ(Ombrel::DescribeFailure(exception), "") << "an empty description is one";
}

TEST(DescribeFailure, GivesTheMessageWhereThereIsNoDescription)
{
    EXPECT_EQ(Ombrel::DescribeFailure(std::out_of_range("invalid map<K, T> key")), "invalid map<K, T> key");
    EXPECT_EQ(Ombrel::DescribeFailure(Exception()), std::exception().what());
    Exception exception;
    exception << Ombrel::ErrorCallStack("main");
    EXPECT_EQ(Ombrel::DescribeFailure(exception), std::exception().what()) << "a call stack is no description";
}

// A failure of a caller's own, which may carry what this library's failures carry.
class Failure : public std::runtime_error, public boost::exception
{
public:
    Failure() : std::runtime_error("a failure of the caller's own") {}
};

TEST(DescribeFailure, TakesFailuresOfACallersOwn)
{
    Failure failure;
    EXPECT_EQ(Ombrel::DescribeFailure(failure), "a failure of the caller's own");
    failure << Ombrel::ErrorDescription("the description of the caller's own");
    EXPECT_EQ(Ombrel::DescribeFailure(failure), "the description of the caller's own");
    EXPECT_STREQ(failure.what(), "a failure of the caller's own");
}

TEST(Exception, HasNoMessageOfItsOwn)
{
    EXPECT_STREQ(Exception().what(), std::exception().what());
    EXPECT_EQ(Ombrel::GetCallStack(), "");
}

} // namespace
