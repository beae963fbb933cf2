#include "ExampleRecord.h"

#include "Proc/Settings/RecordSource.h"
#include "Proc/Settings/RgbaColorCodec.h"

namespace Ombrel::Proc
{

// CONTRIBUTING.md shows the definitions as they stand here.
// [source]
// The names of an enumeration. The first row of a value is its name; an unknown name reads as `fallback`, here 0.
template <> struct EnumNames<SettingsEffectExample::Shape>
{
    static constexpr EnumNameRow ROWS[] = {
        {"round", SettingsEffectExample::Shape::Round},
        {"square", SettingsEffectExample::Shape::Square},
    };
    static constexpr EnumNameTable TABLE{.rows = ROWS, .fallback = 0};
};

OMBREL_EARLY_INIT const std::string SettingsEffectExample::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsEffectExample::GetClassId() const
{
    return ClassIdOf<SettingsEffectExample>();
}

const RecordSchema& ExampleEdge::Schema() noexcept
{
    using R = ExampleEdge;
    return Describe<R, FieldList<AccessorDescriptor<"width", &R::SetWidth, &R::GetWidth>>>();
}

// The order is that of reading and writing; the stored map has its keys in byte order.
const RecordSchema& SettingsEffectExample::Schema() noexcept
{
    using R = SettingsEffectExample;
    return Describe<R, FieldList<FieldDescriptor<&R::m_strength>, FieldDescriptor<&R::m_shape>, FieldDescriptor<&R::m_color>,
                                 FieldDescriptor<&R::m_edge>, AccessorDescriptor<"angle", &R::SetAngle, &R::GetAngle>>>();
}

bool SettingsEffectExample::IsEmpty() const
{
    return m_strength == 0.0;
}
// [/source]

} // namespace Ombrel::Proc
