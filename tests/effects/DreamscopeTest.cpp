#include "Proc/EffectSettings/DreamscopeSettings.h"
#include "support/StoredForm.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using Ombrel::PhotoCore::DreamscopeSettings;
using Support::Map;
using Support::StoredForm;

TEST(Dreamscope, IsEmptyWithoutAModelOrASize)
{
    DreamscopeSettings effect;
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    effect.GetTypedSettings().m_modelName = "mosaic";
    EXPECT_FALSE(effect.GetEffectSettings().IsEmpty());
    effect.GetTypedSettings().m_workingSize = 0;
    EXPECT_TRUE(effect.GetEffectSettings().IsEmpty());
    EXPECT_FALSE(effect.IsEmpty());
}

TEST(Dreamscope, TheDenoiseValuesAreStoredButNotCompared)
{
    DreamscopeSettings a;
    DreamscopeSettings b;
    a.GetTypedSettings().m_denoiseBlurRadius = 2.0;
    b.GetTypedSettings().m_denoiseBlurRadius = 3.0;
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.GetEffectSettings().IsEqualTo(b.GetEffectSettings()));
    EXPECT_EQ(StoredForm(a), Map({{"denoiseBlurRadius", 2.0}}));
    EXPECT_EQ(StoredForm(b), Map({{"denoiseBlurRadius", 3.0}}));
}

TEST(Dreamscope, ModelNamesAreComparedByLengthAndBytes)
{
    DreamscopeSettings a;
    DreamscopeSettings b;
    a.GetTypedSettings().m_modelName = std::string("a\0b", 3);
    b.GetTypedSettings().m_modelName = std::string("a\0c", 3);
    EXPECT_FALSE(a == b);
    b.GetTypedSettings().m_modelName = "a";
    EXPECT_FALSE(a == b);
    b.GetTypedSettings().m_modelName = std::string("a\0b", 3);
    EXPECT_TRUE(a == b);
}

TEST(Dreamscope, TheSigmaIsAnIntegerAndTheRadiusIsNot)
{
    DreamscopeSettings effect;
    effect.Deserialize(Map({{"denoiseBlurSigma", 2.5}, {"denoiseBlurRadius", 2.5}}));
    EXPECT_EQ(effect.GetTypedSettings().m_denoiseBlurSigma, 2);
    EXPECT_EQ(effect.GetTypedSettings().m_denoiseBlurRadius, 2.5);
    EXPECT_EQ(StoredForm(effect), Map({{"denoiseBlurSigma", 2}, {"denoiseBlurRadius", 2.5}}));
}

TEST(Dreamscope, TheExtensionIsCopiedAndNeitherStoredNorCompared)
{
    DreamscopeSettings effect;
    EXPECT_EQ(effect.GetTypedSettings().modelExtension, ".t7");
    effect.GetTypedSettings().modelExtension = ".onnx";
    EXPECT_TRUE(effect == DreamscopeSettings());
    EXPECT_EQ(StoredForm(effect), Map({}));

    const auto clone = effect.Clone();
    EXPECT_EQ(dynamic_cast<const DreamscopeSettings&>(*clone).GetTypedSettings().modelExtension, ".onnx");
    effect.Deserialize(Map({{"modelExtension", ".bin"}}));
    EXPECT_EQ(effect.GetTypedSettings().modelExtension, ".onnx");

    DreamscopeSettings restored;
    restored.Deserialize(StoredForm(effect));
    EXPECT_EQ(restored.GetTypedSettings().modelExtension, ".t7");
}

} // namespace
