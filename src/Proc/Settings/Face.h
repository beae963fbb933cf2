#ifndef OMBREL_PROC_SETTINGS_FACE_H
#define OMBREL_PROC_SETTINGS_FACE_H

#include "OmbrelExport.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

// What detection finds in a picture: plain values, in pixels of the image, compared exactly.
namespace Ombrel::Proc
{

struct RecordSchema;

/// A point of the picture, in pixels.
struct FacePoint
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const FacePoint&) const = default;

    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
};

/// A line through points: the outline of a face, an eyebrow, a line of the nose, a lip.
struct FaceContour
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const FaceContour&) const = default;

    std::vector<FacePoint> m_contour;
};

/// The lid line of an eye. A type of its own, so that it is not taken for any other line.
struct EyeContour
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const EyeContour&) const = default;

    std::vector<FacePoint> m_contour;
};

/// The centre of a pupil, outside the image where none was found.
struct PupilPoint
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const PupilPoint&) const = default;

    FacePoint m_point{-1, -1};
};

/// The lid line and the pupil of one eye.
struct Eye
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const Eye&) const = default;

    EyeContour m_contour;
    PupilPoint m_pupil;
};

/// Both eyes, as they are seen in the picture.
struct Eyes
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const Eyes&) const = default;

    Eye m_left;
    Eye m_right;
};

/// Both eyebrows.
struct Eyebrows
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const Eyebrows&) const = default;

    FaceContour m_left;
    FaceContour m_right;
};

/// The two lines of the nose.
struct Nose
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const Nose&) const = default;

    FaceContour m_vertical;
    FaceContour m_horizontal;
};

/// The outer and the inner line of the lips.
struct Mouth
{
    OMBREL_API static const RecordSchema& Schema() noexcept;

    bool operator==(const Mouth&) const = default;

    FaceContour m_outer;
    FaceContour m_inner;
};

/// Two opposite corners of the frame around a face.
using FramePoints = std::pair<FacePoint, FacePoint>;

/// One detected face.
class OMBREL_API Face
{
public:
    static const RecordSchema& Schema() noexcept;

    /// True if the face equals a default one: nothing was found.
    bool IsEmpty() const;

    /// Compares what is stored, which leaves the reserved bytes out.
    bool operator==(const Face& other) const;

    FaceContour m_outline;
    Eyebrows m_eyebrows;
    Nose m_nose;
    Eyes m_eyes;
    Mouth m_mouth;
    FramePoints m_framePoints;
    std::array<std::byte, 16> m_reserved{}; // part of the layout; copied, never stored
};

} // namespace Ombrel::Proc

#endif
