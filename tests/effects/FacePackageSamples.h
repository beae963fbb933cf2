#ifndef OMBREL_TESTS_EFFECTS_FACE_PACKAGE_SAMPLES_H
#define OMBREL_TESTS_EFFECTS_FACE_PACKAGE_SAMPLES_H

#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "support/TreeText.h"

#include <memory>
#include <utility>
#include <vector>

namespace FacePackageSamples
{

using FaceItem = Ombrel::PhotoCore::SettingsEffectFacePackage::FaceItem;

/// A face that differs from every other by `x`, and its stored form.
inline Ombrel::Proc::Face FaceAt(int x)
{
    Ombrel::Proc::Face face;
    face.m_outline.m_contour = {Ombrel::Proc::FacePoint{x, 2}};
    return face;
}

inline Ombrel::PropertyTree FaceFormAt(int x)
{
    using Support::List;
    using Support::Map;
    return Map({{"outline", Map({{"contour", List({Map({{"x", x}, {"y", 2}})})}})}});
}

inline std::shared_ptr<Ombrel::PhotoCore::VibranceSettings> Vibrance(int strength)
{
    const auto effect = std::make_shared<Ombrel::PhotoCore::VibranceSettings>();
    effect->GetTypedSettings().m_strength = strength;
    return effect;
}

inline int StrengthOf(const std::shared_ptr<Ombrel::PhotoCore::IEffectSettings>& effect)
{
    return dynamic_cast<const Ombrel::PhotoCore::VibranceSettings&>(*effect).GetTypedSettings().m_strength;
}

inline FaceItem Item(const Ombrel::Proc::Face& face, std::shared_ptr<Ombrel::PhotoCore::IEffectSettings> effect)
{
    FaceItem item;
    item.face = face;
    item.effect = std::move(effect);
    return item;
}

inline Ombrel::PhotoCore::SettingsEffectFacePackage Package(std::vector<FaceItem> faces)
{
    return {0, std::move(faces)};
}

} // namespace FacePackageSamples

#endif
