#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_NOISE_VIDEO_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_NOISE_VIDEO_H

#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Adds noise. Every value is stored as given.
class OMBREL_API SettingsEffectNoiseVideo : public ComparedRecord<SettingsEffectNoiseVideo>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_NOISE_VIDEO";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class Method : std::int32_t
    {
        Gaussian = 0,
        MultiplicativeGaussianNoise = 1,
        Uniform = 2,
        Impulse = 3,
        Laplacian = 4,
        Poisson = 5,
    };

    /// Noise of `strength` by `method`.
    SettingsEffectNoiseVideo(std::int32_t strength, Method method) : m_method(method), m_strength(strength) {}

    /// Gaussian noise of strength 0.
    static SettingsEffectNoiseVideo MakeDefault() { return {0, Method::Gaussian}; }

    /// True if the record is as `MakeDefault` makes it.
    bool IsEmpty() const override;

    Method GetMethod() const { return m_method; }
    void SetMethod(Method value) { m_method = value; }

    std::int32_t GetSeed() const { return m_seed; }
    void SetSeed(std::int32_t value) { m_seed = value; }

    std::int32_t GetStrength() const { return m_strength; }
    void SetStrength(std::int32_t value) { m_strength = value; }

private:
    Method m_method;
    std::int32_t m_seed = 0;
    std::int32_t m_strength;
};

} // namespace Ombrel::Proc

#endif
