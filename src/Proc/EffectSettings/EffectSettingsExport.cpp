#include "Proc/EffectSettings/EffectSettingsExport.h"

#include "Proc/EffectSettings/AcidSettings.h"
#include "Proc/EffectSettings/AdjusterSettings.h"
#include "Proc/EffectSettings/AlphaExtractorSettings.h"
#include "Proc/EffectSettings/AutoEnhanceSettings.h"
#include "Proc/EffectSettings/AutoGlareRemoveSettings.h"
#include "Proc/EffectSettings/BalanceLumaSettings.h"
#include "Proc/EffectSettings/BiColorToningSettings.h"
#include "Proc/EffectSettings/BlackWhiteSettings.h"
#include "Proc/EffectSettings/BlendSettings.h"
#include "Proc/EffectSettings/BlurAdaptiveSettings.h"
#include "Proc/EffectSettings/BlurBokehSettings.h"
#include "Proc/EffectSettings/BlurMotionSettings.h"
#include "Proc/EffectSettings/BlurRadialSettings.h"
#include "Proc/EffectSettings/BlurSettings.h"
#include "Proc/EffectSettings/CharcoalSettings.h"
#include "Proc/EffectSettings/ColorBalanceAutoSettings.h"
#include "Proc/EffectSettings/ColorBalanceSettings.h"
#include "Proc/EffectSettings/ColorChannelMixerSettings.h"
#include "Proc/EffectSettings/ColorFilterSettings.h"
#include "Proc/EffectSettings/ColorMixBurnSettings.h"
#include "Proc/EffectSettings/ColorReduceSettings.h"
#include "Proc/EffectSettings/ColoredGlassSettings.h"
#include "Proc/EffectSettings/ColorspaceConverterSettings.h"
#include "Proc/EffectSettings/CropSettings.h"
#include "Proc/EffectSettings/DeepAdjusterSettings.h"
#include "Proc/EffectSettings/DeepAlignerSettings.h"
#include "Proc/EffectSettings/DeepAutoRetoucherSettings.h"
#include "Proc/EffectSettings/DeepColorizerSettings.h"
#include "Proc/EffectSettings/DeepDenoiserSettings.h"
#include "Proc/EffectSettings/DeepEnhancerSettings.h"
#include "Proc/EffectSettings/DeepImageEnhancerSettings.h"
#include "Proc/EffectSettings/DeepLumaUpscalerSettings.h"
#include "Proc/EffectSettings/DeepRestorerSettings.h"
#include "Proc/EffectSettings/DeepSuperResolutorSettings.h"
#include "Proc/EffectSettings/DenoiseChromaLumaSettings.h"
#include "Proc/EffectSettings/DenoiseDCTSettings.h"
#include "Proc/EffectSettings/DenoiseOvercompleteWaveletSettings.h"
#include "Proc/EffectSettings/DetailsEnhanceExSettings.h"
#include "Proc/EffectSettings/DetailsEnhanceSettings.h"
#include "Proc/EffectSettings/DirectionalAreaDeformationSettings.h"
#include "Proc/EffectSettings/DreamscopeSettings.h"
#include "Proc/EffectSettings/EdgeDetectSettings.h"
#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/EffectsPackageWithBrushSettings.h"
#include "Proc/EffectSettings/EmbossSettings.h"
#include "Proc/EffectSettings/EmptySettings.h"
#include "Proc/EffectSettings/EyeExtendingSettings.h"
#include "Proc/EffectSettings/FaceDetectionSettings.h"
#include "Proc/EffectSettings/FacePackageSettings.h"
#include "Proc/EffectSettings/FaceThinningSettings.h"
#include "Proc/EffectSettings/FishEyeSettings.h"
#include "Proc/EffectSettings/FlipSettings.h"
#include "Proc/EffectSettings/GIMPColorCorrectionSettings.h"
#include "Proc/EffectSettings/GIMPColorTemperatureSettings.h"
#include "Proc/EffectSettings/GIMPColorizeSettings.h"
#include "Proc/EffectSettings/GIMPHueSaturationSettings.h"
#include "Proc/EffectSettings/GIMPShadowsHightlightsSettings.h"
#include "Proc/EffectSettings/GradientPosterizeSettings.h"
#include "Proc/EffectSettings/GradientSettings.h"
#include "Proc/EffectSettings/GrayscaleSettings.h"
#include "Proc/EffectSettings/GuidedFilterSettings.h"
#include "Proc/EffectSettings/HalfToneSettings.h"
#include "Proc/EffectSettings/HistogramSettings.h"
#include "Proc/EffectSettings/ImageInpainterSettings.h"
#include "Proc/EffectSettings/ImplodeSettings.h"
#include "Proc/EffectSettings/InpaintSettings.h"
#include "Proc/EffectSettings/LightLeaksSettings.h"
#include "Proc/EffectSettings/MattingSettings.h"
#include "Proc/EffectSettings/NegateVideoSettings.h"
#include "Proc/EffectSettings/NoiseVideoSettings.h"
#include "Proc/EffectSettings/OilPaintSettings.h"
#include "Proc/EffectSettings/PixelateSettings.h"
#include "Proc/EffectSettings/PopArtSettings.h"
#include "Proc/EffectSettings/PosterizeSettings.h"
#include "Proc/EffectSettings/ReduceLocalLumaSettings.h"
#include "Proc/EffectSettings/RegisteredClasses.h"
#include "Proc/EffectSettings/RemoveBackgroundSettings.h"
#include "Proc/EffectSettings/ReplaceChromaSettings.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/RetroArtefactsSettings.h"
#include "Proc/EffectSettings/RetroColorsSettings.h"
#include "Proc/EffectSettings/RotateSettings.h"
#include "Proc/EffectSettings/SegmentationSettings.h"
#include "Proc/EffectSettings/SepiaSettings.h"
#include "Proc/EffectSettings/ShapeMaskSettings.h"
#include "Proc/EffectSettings/SharpenSettings.h"
#include "Proc/EffectSettings/SketchSettings.h"
#include "Proc/EffectSettings/SmartBlurSettings.h"
#include "Proc/EffectSettings/SplitToningSettings.h"
#include "Proc/EffectSettings/StoredTexts.h"
#include "Proc/EffectSettings/TextureSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/EffectSettings/TiltShiftSettings.h"
#include "Proc/EffectSettings/TintTemperatureSettings.h"
#include "Proc/EffectSettings/TransposeSettings.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "Proc/EffectSettings/VignetteFilterSettings.h"
#include "Proc/EffectSettings/VignetteSettings.h"
#include "Proc/EffectSettings/WhiteBalanceSettings.h"
#include "PropertyTree/KeyHead.h"
#include "PropertyTree/KnownTexts.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

namespace Ombrel::PhotoCore
{
namespace
{

template <class Effect> consteval const char* IdOf()
{
    if constexpr (requires { Effect::CLASS_NAME; })
    {
        return Effect::CLASS_NAME;
    }
    else
    {
        return Effect::RecordType::CLASS_NAME;
    }
}

// The simple effect has no keys of its own.
const Proc::RecordSchema* GetNoSchema() noexcept
{
    return nullptr;
}

template <class Effect> consteval auto SchemaOf()
{
    if constexpr (requires { &Effect::GetSchema; })
    {
        return &Effect::GetSchema;
    }
    else
    {
        return &GetNoSchema;
    }
}

void* GetNothing(IEffectSettings&) noexcept
{
    return nullptr;
}

template <class Effect> consteval auto StoredOf()
{
    if constexpr (requires { Effect::GetStoredSource(); })
    {
        return Effect::GetStoredSource();
    }
    else
    {
        return &GetNothing;
    }
}

template <class Effect> consteval EffectClass Entry(Registration registration = Registration::StartUpList)
{
    return {Proc::TYPE_NAME<Effect>, IdOf<Effect>(), &Effect::CreateBase, SchemaOf<Effect>(), StoredOf<Effect>(), registration};
}

// The order of the start-up list is fixed.
constexpr std::array CLASSES{
    Entry<AcidSettings>(),
    Entry<AdjusterSettings>(),
    Entry<AlphaExtractorSettings>(),
    Entry<AutoEnhanceSettings>(),
    Entry<AutoGlareRemoveSettings>(),
    Entry<BalanceLumaSettings>(),
    Entry<BiColorToningSettings>(),
    Entry<BlackWhiteSettings>(),
    Entry<BlurAdaptiveSettings>(),
    Entry<BlurBokehSettings>(),
    Entry<BlurMotionSettings>(),
    Entry<BlurRadialSettings>(),
    Entry<BlurSettings>(),
    Entry<CharcoalSettings>(),
    Entry<ColorBalanceAutoSettings>(),
    Entry<ColorBalanceSettings>(),
    Entry<ColorChannelMixerSettings>(),
    Entry<ColoredGlassSettings>(),
    Entry<ColorReduceSettings>(),
    Entry<ColorFilterSettings>(),
    Entry<ColorMixBurnSettings>(),
    Entry<ColorspaceConverterSettings>(),
    Entry<CropSettings>(),
    Entry<DeepAdjusterSettings>(),
    Entry<DeepAlignerSettings>(),
    Entry<DeepAutoRetoucherSettings>(),
    Entry<DeepColorizerSettings>(),
    Entry<DeepDenoiserSettings>(),
    Entry<DeepImageEnhancerSettings>(),
    Entry<DeepEnhancerSettings>(),
    Entry<DeepLumaUpscalerSettings>(),
    Entry<DeepRestorerSettings>(),
    Entry<DeepSuperResolutorSettings>(),
    Entry<DetailsEnhanceSettings>(),
    Entry<DetailsEnhanceExSettings>(),
    Entry<DenoiseChromaLumaSettings>(),
    Entry<DenoiseDCTSettings>(),
    Entry<DenoiseOvercompleteWaveletSettings>(),
    Entry<DirectionalAreaDeformationSettings>(),
    Entry<DreamscopeSettings>(),
    Entry<EdgeDetectSettings>(),
    Entry<EmbossSettings>(),
    Entry<EmptySettings>(),
    Entry<EyeExtendingSettings>(),
    Entry<FaceDetectionSettings>(),
    Entry<FacePackageSettings>(),
    Entry<FaceThinningSettings>(),
    Entry<FishEyeSettings>(),
    Entry<FlipSettings>(),
    Entry<GIMPColorCorrectionSettings>(),
    Entry<GIMPColorTemperatureSettings>(),
    Entry<GIMPColorizeSettings>(),
    Entry<GIMPHueSaturationSettings>(),
    Entry<GIMPShadowsHightlightsSettings>(),
    Entry<GradientPosterizeSettings>(),
    Entry<GradientSettings>(),
    Entry<GrayscaleSettings>(),
    Entry<HalfToneSettings>(),
    Entry<HistogramSettings>(),
    Entry<ImplodeSettings>(),
    Entry<ImageInpainterSettings>(),
    Entry<InpaintSettings>(),
    Entry<LightLeaksSettings>(),
    Entry<NegateVideoSettings>(),
    Entry<NoiseVideoSettings>(),
    Entry<OilPaintSettings>(),
    Entry<PixelateSettings>(),
    Entry<PopArtSettings>(),
    Entry<PosterizeSettings>(),
    Entry<ReduceLocalLumaSettings>(),
    Entry<RemoveBackgroundSettings>(),
    Entry<ReplaceChromaSettings>(),
    Entry<ResizeSettings>(),
    Entry<RetroArtefactsSettings>(),
    Entry<RetroColorsSettings>(),
    Entry<RotateSettings>(),
    Entry<SepiaSettings>(),
    Entry<ShapeMaskSettings>(),
    Entry<SharpenSettings>(),
    Entry<SketchSettings>(),
    Entry<SmartBlurSettings>(),
    Entry<SplitToningSettings>(),
    Entry<TextureSettings>(),
    Entry<TintTemperatureSettings>(),
    Entry<TiltShiftSettings>(),
    Entry<TransposeSettings>(),
    Entry<VibranceSettings>(),
    Entry<VignetteFilterSettings>(),
    Entry<VignetteSettings>(),
    Entry<WhiteBalanceSettings>(),
    Entry<EffectsPackageWithBrushSettings>(),
    Entry<SegmentationSettings>(),
    Entry<EffectSettingsSimple>(),
    Entry<TileSettings>(Registration::Factory),
    // Not registered: they have an id, and a caller makes them by Create.
    Entry<BlendSettings>(Registration::None),
    Entry<GuidedFilterSettings>(Registration::None),
    Entry<MattingSettings>(Registration::None),
};

// A repeated id would end every program that loads the library.
static_assert(
    []
    {
        std::array<std::string_view, CLASSES.size()> ids;
        std::ranges::transform(CLASSES, ids.begin(), &EffectClass::classId);
        std::ranges::sort(ids);
        return std::ranges::adjacent_find(ids) == ids.end();
    }(),
    "two settings classes have the same class id");

// The start-up list first and whole: a class that is added here without a thought for it would change what is registered.
static_assert(std::ranges::is_sorted(CLASSES, {}, &EffectClass::registration));

// The library's ids in a constant hash table: each is at the place that its hash names, or at the next free one.
class OwnClasses
{
public:
    constexpr OwnClasses()
    {
        for (std::size_t index = 0; index != CLASSES.size(); ++index)
        {
            std::size_t place = PlaceOf(CLASSES[index].classId);
            while (m_numbers[place] != 0)
            {
                place = (place + 1) % PLACES;
            }
            m_numbers[place] = static_cast<std::uint8_t>(index + 1);
            m_ids[index] = CLASSES[index].classId;
        }
    }

    const EffectClass* Find(std::string_view id) const noexcept
    {
        for (std::size_t place = PlaceOf(id); m_numbers[place] != 0; place = (place + 1) % PLACES)
        {
            const std::size_t index = m_numbers[place] - 1U;
            if (m_ids[index] == id)
            {
                return &CLASSES[index];
            }
        }
        return nullptr;
    }

private:
    static constexpr std::size_t PLACES = 512;
    static_assert(CLASSES.size() < PLACES / 2 && CLASSES.size() <= std::numeric_limits<std::uint8_t>::max());

    // What follows the beginning that most ids share, and their ends, tell them apart.
    static constexpr std::size_t PlaceOf(std::string_view id) noexcept
    {
        constexpr std::size_t shared = 7;
        constexpr std::size_t end = 8;
        const std::uint64_t middle = HeadOf(id.substr(std::min(id.size(), shared)));
        const std::uint64_t last = HeadOf(id.substr(id.size() - std::min(id.size(), end)));
        const std::uint64_t mixed = (middle ^ std::rotl(last, 29) ^ id.size()) * 0x9E3779B97F4A7C15;
        return static_cast<std::size_t>(mixed >> 32) % PLACES;
    }

    std::array<std::uint8_t, PLACES> m_numbers{}; // of the classes, from 1; 0 for none
    std::array<std::string_view, CLASSES.size()> m_ids;
};

constexpr OwnClasses OWN_CLASSES;

// Whether the library makes the class by its id.
bool IsCreated(const EffectClass* own) noexcept
{
    return own && own->registration != Registration::None;
}

[[noreturn]] void ThrowDuplicate(const std::string& id)
{
    ThrowException("Duplicate class id (" + id + ")!", REGISTER_FACTORY_LOCATION);
}

// Only says where the texts are; they are listed on first use.
[[maybe_unused]] const bool g_hasTexts = (KnownTexts::SetSource(&ListStoredTexts), true);

} // namespace

std::span<const EffectClass> EffectClasses() noexcept
{
    return CLASSES;
}

const EffectClass* FindEffectClass(std::string_view id) noexcept
{
    const EffectClass* own = OWN_CLASSES.Find(id);
    if (IsCreated(own))
    {
        return own;
    }
    const RegisteredClasses::Entry* entry = RegisteredClasses::Find(id);
    if (!entry)
    {
        return own;
    }
    return entry->effectClass ? &*entry->effectClass : nullptr;
}

bool IsRegistered(std::string_view id) noexcept
{
    return IsCreated(OWN_CLASSES.Find(id)) || RegisteredClasses::Find(id);
}

std::vector<std::string> RegisteredClassIds()
{
    std::vector<std::string> ids;
    const auto add = [&ids](std::string_view id) { ids.emplace(std::ranges::upper_bound(ids, id), id); };
    for (const EffectClass& effectClass : CLASSES)
    {
        if (IsCreated(&effectClass))
        {
            add(effectClass.classId);
        }
    }
    for (const RegisteredClasses::Entry* entry : RegisteredClasses::Get().All())
    {
        add(entry->id);
    }
    return ids;
}

void RegisterEffectClass(const EffectClass& effectClass)
{
    if (IsCreated(OWN_CLASSES.Find(effectClass.classId)) || !RegisteredClasses::Get().Add(effectClass))
    {
        ThrowDuplicate(effectClass.classId);
    }
}

void IEffectSettings::RegisterFactory(const std::string& id, Factory factory)
{
    if (IsCreated(OWN_CLASSES.Find(id)) || !RegisteredClasses::Get().Add(id, std::move(factory)))
    {
        ThrowDuplicate(id);
    }
}

std::shared_ptr<IEffectSettings> IEffectSettings::CreateEffectSettings(const std::string& id)
{
    const EffectClass* own = OWN_CLASSES.Find(id);
    if (IsCreated(own))
    {
        return own->create();
    }
    const RegisteredClasses::Entry* registered = RegisteredClasses::Find(id);
    if (!registered)
    {
        ThrowException("Unknown Effect Setting type (" + id + ")!", CREATE_EFFECT_SETTINGS_LOCATION);
    }
    return registered->factory();
}

} // namespace Ombrel::PhotoCore
