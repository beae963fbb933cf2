#include "Proc/Settings/SettingsEffectSegmentation.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

OMBREL_EARLY_INIT const std::string SettingsEffectSegmentation::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectSegmentation::GetClassId() const
{
    return ClassIdOf<SettingsEffectSegmentation>();
}

template <> struct EnumNames<SettingsEffectSegmentation::SegmentationAlgorithm>
{
    using E = SettingsEffectSegmentation::SegmentationAlgorithm;

    static constexpr EnumNameRow ROWS[] = {
        {"Auto", E::Auto},
        {"GrabCut", E::GrabCut},
        {"GridGraph", E::GridGraph},
        {"Watershed", E::Watershed},
    };
    static constexpr EnumNameTable TABLE{ROWS};
};

const RecordSchema& SettingsEffectSegmentation::Schema() noexcept
{
    using R = SettingsEffectSegmentation;
    return Describe<
        R, FieldList<FieldDescriptor<&R::m_algorithm>, FieldDescriptor<&R::m_foreground>, FieldDescriptor<&R::m_background>,
                     FieldDescriptor<&R::m_alpha>, FieldDescriptor<&R::m_smooth>, FieldDescriptor<&R::m_keepSelection>,
                     FieldDescriptor<&R::m_showProgress>, FieldDescriptor<&R::m_demoMode>, FieldDescriptor<&R::m_demoColor>>>();
}

bool SettingsEffectSegmentation::operator==(const SettingsEffectSegmentation& other) const
{
    return BaseSettingsModelFile::operator==(other) && m_algorithm == other.m_algorithm && m_foreground == other.m_foreground &&
           m_background == other.m_background && m_alpha == other.m_alpha && m_smooth == other.m_smooth &&
           m_keepSelection == other.m_keepSelection && m_showProgress == other.m_showProgress;
}

} // namespace Ombrel::Proc
