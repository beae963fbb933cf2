#ifndef OMBREL_TESTS_HOSTILE_BORDERS_PLUGIN_H
#define OMBREL_TESTS_HOSTILE_BORDERS_PLUGIN_H

#include "Failure.h"

#include "OmbrelExport.h"
#include "Proc/EffectSettings/IEffectSettings.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Borders
{

using Ombrel::PhotoCore::IEffectSettings;

/// What a plugin does for its host, each in code of the plugin.
struct Plugin
{
    /// Throws an `Exception` with the text and both tags.
    void (*raise)(const std::string& text);

    /// What the action throws, as the plugin catches it.
    Failure (*failureOf)(const std::function<void()>& action);

    /// Asks the library's registry.
    std::shared_ptr<IEffectSettings> (*create)(const std::string& id);

    /// An effect of the plugin's own class "EFFECT_FRAME", and what of it only its own class knows.
    /// @throws std::bad_cast from `widthOf` for an effect of another class
    std::shared_ptr<IEffectSettings> (*makeFrame)(std::int32_t width);
    std::int32_t (*widthOf)(const IEffectSettings& effect);
    void (*registerFrame)();

    /// An effect of a class of the plugin's own under the class id of the library's `VibranceSettings`.
    std::shared_ptr<IEffectSettings> (*makeImpostor)();

    /// The strength of the library's `VibranceSettings`.
    /// @throws std::bad_cast for an effect of another class
    std::int32_t (*strengthOf)(const IEffectSettings& effect);

    /// The object that the class id of `VibranceSettings` is.
    const std::string& (*vibranceId)();
};

} // namespace Borders

// The only names that a plugin exports.
extern "C"
{
    OMBREL_API const Borders::Plugin* BordersPlugin();

    /// Uses the library in all ways that leave something behind, and says what went wrong: an empty text is nothing.
    OMBREL_API const char* BordersExercise();
}

#endif
