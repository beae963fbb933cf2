#include "Proc/Settings/Settings.h"

#include "Proc/Settings/SettingsRecord.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <typeinfo>

namespace
{

using Ombrel::Proc::Settings;
using Ombrel::Proc::SettingsRecord;

// A comparison that shows which operand stood on its left.
struct Record : SettingsRecord<Record>
{
    static const std::string CLASS_ID;

    explicit Record(int value) : m_value(value) {}

    bool operator==(const Record& other) const { return m_value <= other.m_value; }

    int m_value;
};

const std::string Record::CLASS_ID{"RECORD"};

struct Derived : SettingsRecord<Derived, Record>
{
    using SettingsRecord::SettingsRecord;

    static const std::string CLASS_ID;

    bool IsEmpty() const override { return m_value == 0; }
    bool operator==(const Derived& other) const { return m_value == other.m_value; }
};

const std::string Derived::CLASS_ID{"DERIVED"};

static_assert(!std::is_default_constructible_v<Settings> && std::is_abstract_v<Settings>);
static_assert(std::has_virtual_destructor_v<Settings>);
static_assert(std::is_copy_constructible_v<Record> && std::is_copy_assignable_v<Record>);

TEST(Settings, AreNotEmptyAndReadNoText)
{
    Record record(3);
    EXPECT_FALSE(record.IsEmpty());
    record.Deserialize("4");
    EXPECT_EQ(record.m_value, 3);
}

TEST(Settings, RecordsKnowTheirId)
{
    EXPECT_EQ(Record(1).GetClassId(), "RECORD");
    EXPECT_EQ(Derived(1).GetClassId(), "DERIVED");
    EXPECT_EQ(&Record(1).GetClassId(), &Record::CLASS_ID);
}

TEST(Settings, CloneHasTheSameType)
{
    const Derived record(5);
    const std::unique_ptr<Settings> clone(static_cast<const Settings&>(record).Clone());
    EXPECT_TRUE(dynamic_cast<const Derived*>(clone.get()));
    EXPECT_TRUE(clone->IsEqualTo(record));
}

TEST(Settings, IsEqualToHasTheArgumentOnTheLeft)
{
    EXPECT_TRUE(Record(2).IsEqualTo(Record(1)));  // 1 <= 2
    EXPECT_FALSE(Record(1).IsEqualTo(Record(2))); // 2 <= 1
}

TEST(Settings, IsEqualToRefusesAnotherType)
{
    EXPECT_THROW(Derived(1).IsEqualTo(Record(1)), std::bad_cast);
    EXPECT_NO_THROW(Record(1).IsEqualTo(Derived(1))); // a derived record is one
}

} // namespace
