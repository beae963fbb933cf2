#ifndef OMBREL_PROC_SETTINGS_BASE_SETTINGS_MODEL_FILE_H
#define OMBREL_PROC_SETTINGS_BASE_SETTINGS_MODEL_FILE_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The base of every record whose effect is driven by a model file. What the base records hold lives in memory alone: it is
/// copied and compared, and no key stores it, so that reading a tree leaves it as it is.
class OMBREL_API BaseSettingsModelFile : public SettingsRecord<BaseSettingsModelFile>
{
public:
    static constexpr const char* CLASS_NAME = "BASE_MODELFILE";
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;

    /// False: an effect with a model always does something.
    bool IsEmpty() const override;

    /// Whether the model files are the same.
    bool operator==(const BaseSettingsModelFile& other) const;

    /// Which model file the effect uses, as a number of the program that runs it. Never stored.
    std::int32_t modelFile = 0;
};

} // namespace Ombrel::Proc

#endif
