#ifndef OMBREL_PROC_EFFECT_SETTINGS_TILE_SETTINGS_STUB_H
#define OMBREL_PROC_EFFECT_SETTINGS_TILE_SETTINGS_STUB_H

#include "Proc/Settings/SettingsRecord.h"

#include <string>

namespace Ombrel::PhotoCore
{

/// The record of a tile: it gives the class id and holds nothing, since the lists of effects are the tile's own.
class OMBREL_API TileSettingsStub : public Proc::SettingsRecord<TileSettingsStub>
{
public:
    static constexpr const char* CLASS_NAME = "effectSettingsTileStub";
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;

    /// Any two are equal.
    bool operator==(const TileSettingsStub&) const { return true; }
};

} // namespace Ombrel::PhotoCore

#endif
