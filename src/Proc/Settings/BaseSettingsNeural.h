#ifndef OMBREL_PROC_SETTINGS_BASE_SETTINGS_NEURAL_H
#define OMBREL_PROC_SETTINGS_BASE_SETTINGS_NEURAL_H

#include "Proc/Settings/BaseSettingsModelFile.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// The base of the records whose effect runs a neural network.
class OMBREL_API BaseSettingsNeural : public SettingsRecord<BaseSettingsNeural, BaseSettingsModelFile>
{
public:
    static constexpr const char* CLASS_NAME = "BASE_NEURAL";
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;

    /// Looks at the six members of the base records and at nothing that a derived record adds: it is the comparison of them
    /// all.
    bool operator==(const BaseSettingsNeural& other) const;

    /// Switches of the program that runs the network, which gives them their meaning. Never stored.
    bool neuralOption1 = true;
    bool neuralOption2 = true;
    bool neuralOption3 = true;
    bool neuralOption4 = false;
    /// The mode of the network, as a number of that program. Never stored.
    std::int32_t neuralMode = 0;
};

} // namespace Ombrel::Proc

#endif
