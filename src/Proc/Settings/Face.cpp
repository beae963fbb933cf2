#include "Proc/Settings/Face.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const RecordSchema& FacePoint::Schema() noexcept
{
    using R = FacePoint;
    return Describe<R, FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>>>();
}

const RecordSchema& FaceContour::Schema() noexcept
{
    using R = FaceContour;
    return Describe<R, FieldList<FieldDescriptor<&R::m_contour>>>();
}

const RecordSchema& EyeContour::Schema() noexcept
{
    using R = EyeContour;
    return Describe<R, FieldList<FieldDescriptor<&R::m_contour>>>();
}

const RecordSchema& PupilPoint::Schema() noexcept
{
    using R = PupilPoint;
    return Describe<R, FieldList<FieldDescriptor<&R::m_point>>>();
}

const RecordSchema& Eye::Schema() noexcept
{
    using R = Eye;
    return Describe<R, FieldList<FieldDescriptor<&R::m_contour>, FieldDescriptor<&R::m_pupil>>>();
}

const RecordSchema& Eyes::Schema() noexcept
{
    using R = Eyes;
    return Describe<R, FieldList<FieldDescriptor<&R::m_left>, FieldDescriptor<&R::m_right>>>();
}

const RecordSchema& Eyebrows::Schema() noexcept
{
    using R = Eyebrows;
    return Describe<R, FieldList<FieldDescriptor<&R::m_left>, FieldDescriptor<&R::m_right>>>();
}

const RecordSchema& Nose::Schema() noexcept
{
    using R = Nose;
    return Describe<R, FieldList<FieldDescriptor<&R::m_vertical>, FieldDescriptor<&R::m_horizontal>>>();
}

const RecordSchema& Mouth::Schema() noexcept
{
    using R = Mouth;
    return Describe<R, FieldList<FieldDescriptor<&R::m_outer>, FieldDescriptor<&R::m_inner>>>();
}

const RecordSchema& Face::Schema() noexcept
{
    using R = Face;
    return Describe<R,
                    FieldList<FieldDescriptor<&R::m_outline>, FieldDescriptor<&R::m_eyebrows>, FieldDescriptor<&R::m_nose>,
                              FieldDescriptor<&R::m_eyes>, FieldDescriptor<&R::m_mouth>, FieldDescriptor<&R::m_framePoints>>>();
}

bool Face::IsEmpty() const
{
    return *this == Reflected<Face>::Default();
}

bool Face::operator==(const Face& other) const
{
    return Reflected<Face>::Equal(*this, other);
}

} // namespace Ombrel::Proc
