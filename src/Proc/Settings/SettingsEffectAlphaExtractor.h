#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ALPHA_EXTRACTOR_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_ALPHA_EXTRACTOR_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// Makes a picture of the alpha channel. It has no parameters and no neutral state: it is never empty, and any two are
/// equal.
class OMBREL_API SettingsEffectAlphaExtractor : public ComparedRecord<SettingsEffectAlphaExtractor>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_ALPHA_EXTRACTOR";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;
};

} // namespace Ombrel::Proc

#endif
