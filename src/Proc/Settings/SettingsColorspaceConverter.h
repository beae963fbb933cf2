#ifndef OMBREL_PROC_SETTINGS_SETTINGS_COLORSPACE_CONVERTER_H
#define OMBREL_PROC_SETTINGS_SETTINGS_COLORSPACE_CONVERTER_H

#include "Proc/Settings/SettingsPixelFormatConverter.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

/// A conversion as an effect of its own. Without required formats it changes nothing.
///
/// Reading a tree adds its formats to those that the record holds: only a fresh record has exactly the tree's list.
class OMBREL_API SettingsColorspaceConverter : public SettingsRecord<SettingsColorspaceConverter, SettingsPixelFormatConverter>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_COLORSPACE_CONVERTER";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    /// True if every value has its default.
    bool IsEmpty() const override;

    /// As the base's, for a chain that ends in this record.
    SettingsColorspaceConverter& AddPixFmt(PixFmt format);
};

} // namespace Ombrel::Proc

#endif
