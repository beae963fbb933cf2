#include "Inspection/KeylessMembers.h"

#include "Proc/EffectSettings/EffectSettingsSimple.h"
#include "Proc/EffectSettings/ResizeSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/Settings/BaseSettingsModelFile.h"
#include "Proc/Settings/BaseSettingsNeural.h"
#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsEffectColorBlender.h"
#include "Proc/Settings/SettingsEffectDeepAutoRetoucher.h"
#include "Proc/Settings/SettingsEffectDeepColorizer.h"
#include "Proc/Settings/SettingsEffectDeepNeuralProcessor.h"
#include "Proc/Settings/SettingsEffectDreamscope.h"
#include "Proc/Settings/SettingsEffectFaceDetection.h"
#include "Proc/Settings/SettingsEffectFishEye.h"
#include "Proc/Settings/SettingsEffectGIMPHueSaturation.h"
#include "Proc/Settings/SettingsEffectImageInpainter.h"
#include "Proc/Settings/SettingsEffectNegateVideo.h"
#include "Proc/Settings/SettingsEffectOilPaint.h"
#include "Proc/Settings/SettingsEffectRetroArtefacts.h"
#include "Proc/Settings/SettingsResizer.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

// Members without a key, by the class that declares them. A record does not know of them itself: nothing that reads or writes
// has a use for them.
namespace Ombrel::Inspection
{
namespace
{

struct Row
{
    std::string_view member;
    std::string_view type;
    std::string_view defaultValue;
    bool isCompared;
};

constexpr Row MODEL_FILE[] = {{"modelFile", "int32", "0", true}};
constexpr Row NEURAL[] = {
    {"neuralOption1", "bool", "true", true},  {"neuralOption2", "bool", "true", true}, {"neuralOption3", "bool", "true", true},
    {"neuralOption4", "bool", "false", true}, {"neuralMode", "int32", "0", true},
};
constexpr Row NEURAL_MODE_1[] = {{"neuralMode", "int32", "1", true}};
constexpr Row PROCESSOR[] = {
    {"processorMode", "int32", "3", false},
    {"processorIndex", "int32", "-1", false},
    {"processorLimitFirst", "int32", "3072", false},
    {"processorLimitSecond", "int32", "3072", false},
};
constexpr Row AUTO_RETOUCHER[] = {{"faces", "list of records Face", "empty", false}};
constexpr Row COLOR_BLENDER[] = {
    {"SetIntensity, GetIntensity", "float32; \"alpha\" and \"blendingMode\" set it", "0.0", true},
    {"SetBlendingMode, GetBlendingMode", "BlendingMode; written as \"blendingMode\" but never read from it", "Default", true},
};
constexpr Row DREAMSCOPE[] = {{"modelExtension", "string", "\".t7\"", false}};
constexpr Row FACE_DETECTION[] = {
    {"m_detectionMode", "int32", "0", true},
    {"m_faces", "list of records Face", "empty", false},
};
constexpr Row FISH_EYE[] = {
    {"m_deviationFactor", "float64, private; the deviation at intensity 1; \"deviation\" sets it", "0.0", true},
};
constexpr Row HUE_SATURATION[] = {
    {"SetHue, GetHue", "float32 for each HueRange except Master", "0.0", true},
    {"SetLightness, GetLightness", "float32 for each HueRange except Master", "0.0", true},
    {"SetSaturation, GetSaturation", "float32 for each HueRange except Master", "0.0", true},
};
constexpr Row NEGATE_VIDEO[] = {
    {"SetMode", "int32; the bits of the mask that are no channel; \"mode\" clears them", "0", true},
};
constexpr Row OIL_PAINT[] = {{"m_radius", "int32, private; the radius as it was set; \"radius\" sets it", "0", true}};
constexpr Row RETRO_ARTEFACTS[] = {
    {"m_grain", "uint32, private; the amount as it was set; \"grain\" sets it", "0", true},
    {"m_scratches", "uint32, private; the amount as it was set; \"scratches\" sets it", "0", true},
    {"m_rollerTrack", "uint32, private; the amount as it was set; \"rollerTrack\" sets it", "0", true},
};
constexpr Row RESIZER[] = {
    {"GetSizeMode", "SizeModes; SetCustomMode and SetCustomScale set it", "Original", true},
    {"SetCustomMode, GetCustomMode", "CustomModes", "Stretch", true},
    {"SetCustomMode, GetFrameInfo", "record Conf::FrameInfo; in the mode CustomFrame \"frameInfo\" sets it", "all 0", true},
    {"SetCustomScale, GetScaleFactor", "float64; in the mode CustomScale \"scaleFactor\" sets it", "1.0", true},
};
constexpr Row RESIZE[] = {
    {"m_customMode",
     "CustomModes, private; the custom mode at the last Serialize, which a read in the mode CustomFrame restores", "Stretch",
     false},
};
constexpr Row SIMPLE[] = {
    {"SetInputType, GetInputType", "InputType", "One", false},
    {"GetEffectSettingsRef", "std::shared_ptr<Proc::Settings>, given to the constructor", "null", false},
};
constexpr Row TILE[] = {
    {"GetWidth", "uint64; the number of cells in the first row under \"effectRows\"", "0", true},
    {"GetHeight", "uint64; the number of rows under \"effectRows\"", "0", true},
};
constexpr Row FACE[] = {{"m_reserved", "16 bytes", "all 0", false}};

// Whether the effect or its record is a `Class`.
template <class Class> bool Is(PhotoCore::IEffectSettings& effect)
{
    return dynamic_cast<const Class*>(&effect) || dynamic_cast<const Class*>(&effect.GetEffectSettings());
}

struct Declaration
{
    bool (*is)(PhotoCore::IEffectSettings& effect);
    std::span<const Row> rows;
};

// A base before what is derived from it, which may have another default.
constexpr Declaration DECLARATIONS[] = {
    {&Is<Proc::BaseSettingsModelFile>, MODEL_FILE},
    {&Is<Proc::BaseSettingsNeural>, NEURAL},
    {&Is<Proc::SettingsEffectDeepColorizer>, NEURAL_MODE_1},
    {&Is<Proc::SettingsEffectImageInpainter>, NEURAL_MODE_1},
    {&Is<Proc::SettingsEffectDeepNeuralProcessor>, PROCESSOR},
    {&Is<Proc::SettingsEffectDeepAutoRetoucher>, AUTO_RETOUCHER},
    {&Is<Proc::SettingsEffectColorBlender>, COLOR_BLENDER},
    {&Is<Proc::SettingsEffectDreamscope>, DREAMSCOPE},
    {&Is<Proc::SettingsEffectFaceDetection>, FACE_DETECTION},
    {&Is<Proc::SettingsEffectFishEye>, FISH_EYE},
    {&Is<Proc::SettingsEffectGIMPHueSaturation>, HUE_SATURATION},
    {&Is<Proc::SettingsEffectNegateVideo>, NEGATE_VIDEO},
    {&Is<Proc::SettingsEffectOilPaint>, OIL_PAINT},
    {&Is<Proc::SettingsEffectRetroArtefacts>, RETRO_ARTEFACTS},
    {&Is<Proc::SettingsResizer>, RESIZER},
    {&Is<PhotoCore::ResizeSettings>, RESIZE},
    {&Is<PhotoCore::EffectSettingsSimple>, SIMPLE},
    {&Is<PhotoCore::TileSettings>, TILE},
};

void Add(std::span<const Row> rows, std::vector<KeylessMember>& members)
{
    for (const Row& row : rows)
    {
        KeylessMember member{std::string(row.member), std::string(row.type), std::string(row.defaultValue), row.isCompared};
        const auto same = std::ranges::find(members, row.member, &KeylessMember::member);
        if (same == members.end())
        {
            members.push_back(std::move(member));
        }
        else
        {
            *same = std::move(member);
        }
    }
}

} // namespace

std::vector<KeylessMember> KeylessMembersOf(PhotoCore::IEffectSettings& effect)
{
    std::vector<KeylessMember> members;
    for (const Declaration& declaration : DECLARATIONS)
    {
        if (declaration.is(effect))
        {
            Add(declaration.rows, members);
        }
    }
    return members;
}

std::vector<KeylessMember> KeylessMembersOf(const Proc::RecordSchema& record)
{
    std::vector<KeylessMember> members;
    if (&record == &Proc::Face::Schema())
    {
        Add(FACE, members);
    }
    return members;
}

} // namespace Ombrel::Inspection
