#ifndef OMBREL_PROC_EFFECT_SETTINGS_TRANSPOSE_SETTINGS_H
#define OMBREL_PROC_EFFECT_SETTINGS_TRANSPOSE_SETTINGS_H

#include "Proc/EffectSettings/EffectSettingsImpl.h"
#include "Proc/Settings/SettingsEffectTranspose.h"

namespace Ombrel::PhotoCore
{

class OMBREL_API TransposeSettings : public EffectSettingsOneInputReflection<Proc::SettingsEffectTranspose, TransposeSettings>
{
public:
    using EffectSettingsImpl::Add;
    using EffectSettingsReflection::EffectSettingsReflection;

    TransposeSettings();
    TransposeSettings(const TransposeSettings&);
    TransposeSettings(TransposeSettings&&) noexcept;
    TransposeSettings& operator=(const TransposeSettings&);
    TransposeSettings& operator=(TransposeSettings&&) noexcept;
    ~TransposeSettings() override;

    const std::string& GetClassId() const override;

    bool IsAdditive() const override;

    /// Turns on by as many quarter turns as `other` holds; a negative number is none.
    void Add(const TransposeSettings& other) override;
};

} // namespace Ombrel::PhotoCore

#endif
