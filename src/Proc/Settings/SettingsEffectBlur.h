#ifndef OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_H
#define OMBREL_PROC_SETTINGS_SETTINGS_EFFECT_BLUR_H

#include "Proc/Settings/PixFmt.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>

namespace Ombrel::Proc
{

/// Blur by one of several algorithms. Every value is stored as given. With a kernel length and deviations of 0 the picture
/// stays as it is.
class OMBREL_API SettingsEffectBlur : public ComparedRecord<SettingsEffectBlur>
{
public:
    static constexpr const char* CLASS_NAME = "EFFECT_BLUR";
    static const std::string CLASS_ID;
    static const RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    enum class Algorithm : std::int32_t
    {
        Homogeneous = 0,
        Gaussian = 1,
        Median = 2,
        Bilateral = 3,
    };

    enum class BlurScaleType : std::int32_t
    {
        Absolute = 0,
        Relative = 1,
        RelativeMax = 2,
        RelativeMin = 3,
    };

    /// A blur by `algorithm`, with the defaults of all other values.
    explicit SettingsEffectBlur(Algorithm algorithm) : m_algorithm(algorithm) {}

    /// A Gaussian blur.
    static SettingsEffectBlur MakeDefault() { return SettingsEffectBlur(Algorithm::Gaussian); }

    /// True if the record is as `MakeDefault` makes it.
    bool IsEmpty() const override;

    Algorithm GetAlgorithm() const { return m_algorithm; }
    void SetAlgorithm(Algorithm value) { m_algorithm = value; }

    BlurScaleType GetScaleType() const { return m_scaleType; }
    void SetScaleType(BlurScaleType value) { m_scaleType = value; }

    PixFmt GetPixelFormat() const { return m_pixelFormat; }
    void SetPixelFormat(PixFmt value) { m_pixelFormat = value; }

    std::int32_t GetKernelLength() const { return m_kernelLength; }
    void SetKernelLength(std::int32_t value) { m_kernelLength = value; }

    std::int32_t GetIterations() const { return m_iterations; }
    void SetIterations(std::int32_t value) { m_iterations = value; }

    std::int32_t GetPlanesMask() const { return m_planesMask; }
    void SetPlanesMask(std::int32_t value) { m_planesMask = value; }

    double GetDevX() const { return m_devX; }
    void SetDevX(double value) { m_devX = value; }

    double GetDevY() const { return m_devY; }
    void SetDevY(double value) { m_devY = value; }

    double GetScaleX() const { return m_scaleX; }
    void SetScaleX(double value) { m_scaleX = value; }

    double GetScaleY() const { return m_scaleY; }
    void SetScaleY(double value) { m_scaleY = value; }

private:
    // The stored order of the keys is another.
    Algorithm m_algorithm;
    std::int32_t m_kernelLength = 0;
    double m_devX = 0.0;
    double m_devY = 0.0;
    std::int32_t m_iterations = 1;
    std::int32_t m_planesMask = -1; // all planes
    PixFmt m_pixelFormat = PixFmt::None;
    BlurScaleType m_scaleType = BlurScaleType::Absolute;
    double m_scaleX = 1.0;
    double m_scaleY = 1.0;
};

} // namespace Ombrel::Proc

#endif
