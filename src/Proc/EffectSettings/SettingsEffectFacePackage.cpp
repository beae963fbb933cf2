#include "Proc/EffectSettings/SettingsEffectFacePackage.h"

#include "Proc/EffectSettings/EffectPointerCodec.h"
#include "Proc/Settings/RecordSource.h"

#include <algorithm>
#include <utility>

namespace Ombrel::PhotoCore
{
namespace
{

std::shared_ptr<IEffectSettings> CloneOf(const std::shared_ptr<IEffectSettings>& effect)
{
    return effect ? effect->Clone() : nullptr;
}

} // namespace

using FaceItem = SettingsEffectFacePackage::FaceItem;

const Proc::RecordSchema& FaceItem::Schema() noexcept
{
    using namespace Proc;
    using R = FaceItem;
    return Describe<R, FieldList<FieldDescriptor<&R::face>, FieldDescriptor<&R::effect>>>();
}

FaceItem::FaceItem() = default;

FaceItem::FaceItem(const FaceItem& other) : face(other.face), effect(CloneOf(other.effect)) {}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): what is told below serves that as well
FaceItem& FaceItem::operator=(const FaceItem& other)
{
    // The clone first and the old effect last: `other` may stand inside the old effect.
    std::shared_ptr<IEffectSettings> clone = CloneOf(other.effect);
    face = other.face;
    effect = std::move(clone);
    return *this;
}

FaceItem::~FaceItem() = default;

bool FaceItem::operator==(const FaceItem& other) const
{
    return face == other.face && IEffectSettings::Equals(effect, other.effect);
}

OMBREL_EARLY_INIT const std::string SettingsEffectFacePackage::CLASS_ID = Proc::ClassIdText(CLASS_NAME);

const std::string& SettingsEffectFacePackage::GetClassId() const
{
    return Proc::ClassIdOf<SettingsEffectFacePackage>();
}

const Proc::RecordSchema& SettingsEffectFacePackage::Schema() noexcept
{
    using namespace Proc;
    using R = SettingsEffectFacePackage;
    return Describe<R, FieldList<FieldDescriptor<&R::m_currentFaceIndex>, FieldDescriptor<&R::m_facesEffects>>>();
}

SettingsEffectFacePackage::SettingsEffectFacePackage() = default;

SettingsEffectFacePackage::SettingsEffectFacePackage(std::uint64_t currentFace, std::vector<FaceItem> faces)
    : m_currentFaceIndex(currentFace), m_facesEffects(std::move(faces))
{
}

SettingsEffectFacePackage::SettingsEffectFacePackage(const SettingsEffectFacePackage&) = default;
SettingsEffectFacePackage::SettingsEffectFacePackage(SettingsEffectFacePackage&&) noexcept = default;

SettingsEffectFacePackage& SettingsEffectFacePackage::operator=(const SettingsEffectFacePackage& other)
{
    const std::uint64_t currentFace = other.m_currentFaceIndex; // `other` may end with the old faces
    SetFaces(other.m_facesEffects);
    m_currentFaceIndex = currentFace;
    return *this;
}

SettingsEffectFacePackage& SettingsEffectFacePackage::operator=(SettingsEffectFacePackage&& other) noexcept
{
    if (this != &other)
    {
        m_currentFaceIndex = other.m_currentFaceIndex;
        // The old faces go last: `other` may stand inside the effect of one.
        const std::vector<FaceItem> old = std::exchange(m_facesEffects, std::move(other.m_facesEffects));
    }
    return *this;
}

SettingsEffectFacePackage::~SettingsEffectFacePackage() = default;

bool SettingsEffectFacePackage::IsEmpty() const
{
    return m_facesEffects.empty();
}

void SettingsEffectFacePackage::SetFaces(const std::vector<FaceItem>& faces)
{
    if (&faces != &m_facesEffects)
    {
        m_facesEffects = std::vector<FaceItem>(faces); // all copied before the first old effect goes
    }
}

bool SettingsEffectFacePackage::operator==(const SettingsEffectFacePackage& other) const
{
    return m_currentFaceIndex == other.m_currentFaceIndex &&
           std::ranges::mismatch(m_facesEffects, other.m_facesEffects).in1 == m_facesEffects.end();
}

} // namespace Ombrel::PhotoCore
