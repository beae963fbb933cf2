#include "PropertyTree/PropertyTreeOutput.h" // shows a tree in a failed expectation
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <stdlib.h> // mkdtemp, setenv

#include <array>
#include <clocale>
#include <cstdio>
#include <filesystem>
#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>

#include <gtest/gtest.h>

namespace Ombrel
{
namespace
{

class CommaPoint : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// Sets up the C locale `name`, which is built if the machine does not have it, and takes it back at the end.
class CLocale
{
public:
    CLocale(const char* name, const char* source)
        : m_before(std::setlocale(LC_ALL, nullptr)), m_isSet(std::setlocale(LC_ALL, name) != nullptr)
    {
        if (!m_isSet)
        {
            Build(name, source);
        }
    }

    ~CLocale()
    {
        std::setlocale(LC_ALL, m_before.c_str());
        if (m_directory)
        {
            unsetenv("LOCPATH");
            std::error_code ignored;
            std::filesystem::remove_all(*m_directory, ignored);
        }
    }

    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;

    bool IsSet() const { return m_isSet; }

private:
    void Build(const char* name, const char* source)
    {
        std::string directory = std::filesystem::temp_directory_path() / "ombrel-locale-XXXXXX";
        if (!mkdtemp(directory.data()))
        {
            return;
        }
        m_directory = directory;
        const std::string command = "localedef -i " + std::string(source) + " -f UTF-8 '" + directory + "/" + name + "' 2>&1";
        if (system(command.c_str()) == 0)
        {
            setenv("LOCPATH", directory.c_str(), 1);
            m_isSet = std::setlocale(LC_ALL, name) != nullptr;
        }
    }

    std::string m_before;
    bool m_isSet;
    std::optional<std::filesystem::path> m_directory;
};

class CppLocale
{
public:
    CppLocale() : m_before(std::locale::global(std::locale(std::locale::classic(), new CommaPoint))) {}
    ~CppLocale() { std::locale::global(m_before); }

    CppLocale(const CppLocale&) = delete;
    CppLocale& operator=(const CppLocale&) = delete;

private:
    std::locale m_before;
};

void ExpectNumbersAsEver()
{
    PropertyTree tree;
    tree.append(1234567);
    tree.append(1234567.0);
    tree.append(-0.5);
    tree.append(1.5e300);
    EXPECT_EQ(WriteJson(tree), "[1234567,1234567.0,-0.5,1.5e+300]");
    EXPECT_EQ(ReadJson("[1234567, 1234567.0, -0.5, 1.5e+300]"), tree);
    EXPECT_EQ(ReadJson("-1.25e-400"), PropertyTree(0.0));
    EXPECT_THROW(ReadJson("1,5"), JsonError);

    try
    {
        ReadJson("[\n0.5, 1.5e400]");
        ADD_FAILURE() << "was read";
    }
    catch (const JsonError& error)
    {
        EXPECT_STREQ(error.what(), "2:6: at 1: the number does not fit a 64-bit float");
    }
    std::string thousandLines(1234, '\n');
    try
    {
        ReadJson(thousandLines);
        ADD_FAILURE() << "was read";
    }
    catch (const JsonError& error)
    {
        EXPECT_TRUE(std::string(error.what()).starts_with("1235:1: ")) << error.what();
    }
}

void ExpectNumbersAsEverIn(const char* name, const char* source, const char* decimalPoint)
{
    const CLocale locale(name, source);
    ASSERT_TRUE(locale.IsSet()) << name << " is neither here nor can it be built: Debian's package locales has its source";
    ASSERT_STREQ(std::localeconv()->decimal_point, decimalPoint);
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%.1f", 0.5);
    ASSERT_EQ(text.data(), std::string("0") + decimalPoint + "5") << "the locale has no effect here";
    ExpectNumbersAsEver();
}

TEST(JsonLocale, CommaOfTheCLocaleChangesNothing)
{
    ExpectNumbersAsEverIn("de_DE.UTF-8", "de_DE", ",");
}

TEST(JsonLocale, PointOfSeveralBytesChangesNothing)
{
    ExpectNumbersAsEverIn("ps_AF.UTF-8", "ps_AF", "\xD9\xAB");
}

TEST(JsonLocale, CommaOfTheStreamsChangesNothing)
{
    const CppLocale locale;
    std::ostringstream stream;
    stream << 1234.5;
    ASSERT_EQ(stream.str(), "1.234,5") << "the locale has no effect here";
    ExpectNumbersAsEver();
}

} // namespace
} // namespace Ombrel
