#ifndef OMBREL_PROC_EFFECT_SETTINGS_SETTINGS_EFFECT_FACE_PACKAGE_H
#define OMBREL_PROC_EFFECT_SETTINGS_SETTINGS_EFFECT_FACE_PACKAGE_H

#include "Proc/EffectSettings/IEffectSettings.h"
#include "Proc/Settings/Face.h"
#include "Proc/Settings/SettingsRecord.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Ombrel::PhotoCore
{

/// The faces of one image, each with the effect that is applied to it, and which of them is being edited. The package owns
/// its effects: no two packages share one.
class OMBREL_API SettingsEffectFacePackage : public Proc::SettingsRecord<SettingsEffectFacePackage>
{
public:
    static constexpr const char* CLASS_NAME = "SettingsEffectFacePackage";
    static const std::string CLASS_ID;
    static const Proc::RecordSchema& Schema() noexcept;

    const std::string& GetClassId() const override;

    class FaceItem;

    /// Index 0 and no faces.
    SettingsEffectFacePackage();
    SettingsEffectFacePackage(std::uint64_t currentFace, std::vector<FaceItem> faces);

    SettingsEffectFacePackage(const SettingsEffectFacePackage&);
    SettingsEffectFacePackage(SettingsEffectFacePackage&&) noexcept;
    SettingsEffectFacePackage& operator=(const SettingsEffectFacePackage& other);
    SettingsEffectFacePackage& operator=(SettingsEffectFacePackage&&) noexcept;
    ~SettingsEffectFacePackage() override;

    /// True if there are no faces, whichever is current.
    bool IsEmpty() const override;

    /// The index of the face under edit. Nothing holds it within the list: the caller checks.
    std::uint64_t GetCurrentFace() const { return m_currentFaceIndex; }
    void SetCurrentFace(std::uint64_t value) { m_currentFaceIndex = value; }

    /// The faces with their effects. They belong to this record.
    const std::vector<FaceItem>& GetFaces() const { return m_facesEffects; }

    /// Takes copies of the faces and clones of their effects; a package's own list is left as it is. The list may stand inside
    /// an effect of this package.
    void SetFaces(const std::vector<FaceItem>& faces);

    /// Not symmetric: the same current face, and for each of the own items an equal one at its place in `other`, which may
    /// have more.
    /// @throws what the comparison of two effects throws
    bool operator==(const SettingsEffectFacePackage& other) const;
    bool operator!=(const SettingsEffectFacePackage& other) const { return !operator==(other); }

private:
    std::uint64_t m_currentFaceIndex = 0;
    std::vector<FaceItem> m_facesEffects;
};

/// A face and its effect, which may be null. The item owns the effect: every copy clones it. Items have no move form, so a
/// vector that grows clones as well.
class OMBREL_API SettingsEffectFacePackage::FaceItem
{
public:
    static const Proc::RecordSchema& Schema() noexcept;

    FaceItem();
    FaceItem(const FaceItem& other);
    FaceItem& operator=(const FaceItem& other);
    ~FaceItem();

    /// Equal faces and equal effects, as `IEffectSettings::Equals` compares them.
    bool operator==(const FaceItem& other) const;

    Proc::Face face;
    std::shared_ptr<IEffectSettings> effect;
};

} // namespace Ombrel::PhotoCore

#endif
