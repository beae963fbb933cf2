#include "PhotoUtil/ISerializable.h"
#include "PropertyTree/PropertyTree.h"

#include <gtest/gtest.h>

namespace
{

using Ombrel::PropertyTree;
using Ombrel::PhotoUtil::ISerializable;
using Ombrel::PhotoUtil::ISerializableBase;

class Sample : public ISerializable
{
public:
    explicit Sample(std::string id) : m_id(std::move(id)) {}

    const std::string& GetClassId() const override { return m_id; }
    void Serialize(PropertyTree& tree) const override { tree = PropertyTree(m_id); }
    void Deserialize(const PropertyTree& tree) override { m_id = tree.getScalar().toString(); }

private:
    std::string m_id;
};

TEST(PhotoUtil, HasNoPropertyAccessByDefault)
{
    Sample sample("a");
    EXPECT_FALSE(sample.GetPropertyAccess());
    EXPECT_FALSE(std::as_const(sample).GetPropertyAccess());
}

TEST(PhotoUtil, ComparesClassIds)
{
    EXPECT_TRUE(Sample("a") == Sample("a"));
    EXPECT_FALSE(Sample("a") == Sample("b"));
}

TEST(PhotoUtil, IsCopiedAndMoved)
{
    Sample sample("a");
    Sample copy = sample;
    EXPECT_TRUE(copy == sample);
    const Sample moved = std::move(copy);
    EXPECT_TRUE(moved == sample);
    Sample other("b");
    other = sample;
    EXPECT_TRUE(other == sample);
}

static_assert(std::is_abstract_v<ISerializableBase> && std::is_abstract_v<ISerializableBase::IPropertyAccess>);
static_assert(std::has_virtual_destructor_v<ISerializableBase>);
static_assert(std::has_virtual_destructor_v<ISerializableBase::IPropertyAccess>);

} // namespace
