#include "Inspection/EffectCheck.h"
#include "Inspection/KnownClass.h"
#include "Inspection/Usable.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/EffectSettings/TileSettings.h"
#include "Proc/ImplNames.h"
#include "Proc/Settings/StoredKeys.h"

// What every effect has beside its own record.
namespace Ombrel::Inspection
{

using PhotoCore::HelperSettings;

namespace StoredKeys = Proc::StoredKeys;

void EffectCheck::CheckBaseMembers(const Map& map)
{
    m_baseMembers = 1; // the name
    const bool isLost = m_node.isCopied && m_schema == &PhotoCore::TileSettings::Schema();
    if (const auto found = map.find(StoredKeys::IMPL_NAME); found != map.end())
    {
        ++m_baseMembers;
        const Place place{.parent = m_node.place, .key = StoredKeys::IMPL_NAME};
        const std::size_t errors = m_findings.ErrorCount();
        m_values.Check(found->second, IMPL_NAME_VALUE, place);
        if (m_findings.ErrorCount() == errors)
        {
            EndBaseMember(found->second, found->second.getScalar().toString() == Proc::ImplNames::DEFAULT_NAME, isLost, place);
        }
    }
    if (const auto found = map.find(StoredKeys::HELPER_SETTINGS); found != map.end())
    {
        ++m_baseMembers;
        const Place place{.parent = m_node.place, .key = StoredKeys::HELPER_SETTINGS};
        m_values.Check(found->second, HELPER_SETTINGS_VALUE, place);
        if (m_findings.HasError(found->second))
        {
            return;
        }
        const Proc::RecordSchema& schema = HelperSettings::Schema();
        HelperSettings helper;
        PropertyTree usable;
        CopyUsable(found->second, usable, HELPER_SETTINGS_VALUE, place, m_findings, nullptr);
        schema.read(&helper, usable.getMap(), &READ);
        const bool isDefault = schema.equal(&helper, schema.defaults());
        EndBaseMember(found->second, isDefault, isLost, place);
        if (!isDefault && !isLost)
        {
            PropertyTree written;
            schema.write(&helper, written.makeMap(), &WRITE, 0);
            m_comparison.CompareMembers(found->second.getMap(), written.getMap(), schema, place);
        }
    }
}

void EffectCheck::EndBaseMember(const PropertyTree& value, bool isDefault, bool isLost, const Place& place)
{
    if (isDefault || isLost)
    {
        Finding& finding = m_findings.Add(isDefault ? FindingCode::DefaultWritten : FindingCode::LostByCopy, place, &value,
                                          isDefault ? "it has its default and is not written again"
                                                    : "a face package copies the tile, and copies of tiles do not have it");
        finding.mend = Mend::Remove;
    }
}

} // namespace Ombrel::Inspection
