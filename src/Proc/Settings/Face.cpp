#include "Proc/Settings/Face.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

template <> struct Fields<FacePoint>
{
    using R = FacePoint;
    using List = FieldList<FieldDescriptor<&R::m_x>, FieldDescriptor<&R::m_y>>;
};

template struct Reflected<FacePoint>;
template struct Reflected<FramePoints>;

template <> struct Fields<FaceContour>
{
    using List = FieldList<FieldDescriptor<&FaceContour::m_contour>>;
};

template struct Reflected<FaceContour>;

template <> struct Fields<EyeContour>
{
    using List = FieldList<FieldDescriptor<&EyeContour::m_contour>>;
};

template struct Reflected<EyeContour>;

template <> struct Fields<PupilPoint>
{
    using List = FieldList<FieldDescriptor<&PupilPoint::m_point>>;
};

template struct Reflected<PupilPoint>;

template <> struct Fields<Eye>
{
    using R = Eye;
    using List = FieldList<FieldDescriptor<&R::m_contour>, FieldDescriptor<&R::m_pupil>>;
};

template struct Reflected<Eye>;

template <> struct Fields<Eyes>
{
    using R = Eyes;
    using List = FieldList<FieldDescriptor<&R::m_left>, FieldDescriptor<&R::m_right>>;
};

template struct Reflected<Eyes>;

template <> struct Fields<Eyebrows>
{
    using R = Eyebrows;
    using List = FieldList<FieldDescriptor<&R::m_left>, FieldDescriptor<&R::m_right>>;
};

template struct Reflected<Eyebrows>;

template <> struct Fields<Nose>
{
    using R = Nose;
    using List = FieldList<FieldDescriptor<&R::m_vertical>, FieldDescriptor<&R::m_horizontal>>;
};

template struct Reflected<Nose>;

template <> struct Fields<Mouth>
{
    using R = Mouth;
    using List = FieldList<FieldDescriptor<&R::m_outer>, FieldDescriptor<&R::m_inner>>;
};

template struct Reflected<Mouth>;

template <> struct Fields<Face>
{
    using R = Face;
    using List = FieldList<FieldDescriptor<&R::m_outline>, FieldDescriptor<&R::m_eyebrows>, FieldDescriptor<&R::m_nose>,
                           FieldDescriptor<&R::m_eyes>, FieldDescriptor<&R::m_mouth>, FieldDescriptor<&R::m_framePoints>>;
};

template struct Reflected<Face>;

bool Face::IsEmpty() const
{
    return *this == Reflected<Face>::Default();
}

bool Face::operator==(const Face& other) const
{
    return Reflected<Face>::Equal(*this, other);
}

} // namespace Ombrel::Proc
