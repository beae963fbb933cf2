#ifndef OMBREL_PROC_EFFECT_SETTINGS_FACE_PACKAGE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_FACE_PACKAGE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/EffectSettings/SettingsEffectFacePackage.h"

namespace Ombrel::PhotoCore
{

/// `IsEmpty` is false here also where the record, asked itself, says that there are no faces.
class OMBREL_API FacePackageSettings : public EffectSettingsOneInputReflection<SettingsEffectFacePackage, FacePackageSettings>
{
public:
    using EffectSettingsReflection::EffectSettingsReflection;

    FacePackageSettings();
    FacePackageSettings(const FacePackageSettings&);
    FacePackageSettings(FacePackageSettings&&) noexcept; // keeps the effect objects, where a copy clones them
    FacePackageSettings& operator=(const FacePackageSettings&);
    FacePackageSettings& operator=(FacePackageSettings&&) noexcept;
    ~FacePackageSettings() override;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::PhotoCore

#endif
