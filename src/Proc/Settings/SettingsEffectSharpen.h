#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SHARPEN_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_SHARPEN_H

#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

class OMBREL_API SettingsEffectSharpen : public ComparedRecord<SettingsEffectSharpen>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_SHARPEN";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if the record is as by default.
    bool IsEmpty() const override;

    double GetLevel() const { return m_level; }

    /// Stores the level as given. Every read of a stored tree comes through here.
    void SetLevel(double value);

private:
    double m_level = 0.0;
};

} // namespace Ombrel::Proc

#endif
