#include "Proc/EffectSettings/StoredTexts.h"

#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/HelperSettings.h"
#include "Proc/ImplNames.h"
#include "Proc/Reflection/EnumNameTable.h"
#include "Proc/Reflection/Reflected.h"
#include "Proc/Reflection/Schema.h"
#include "Proc/Settings/StoredKeys.h"

#include <algorithm>
#include <span>
#include <utility>

namespace Ombrel::PhotoCore
{
namespace
{

class Lister
{
public:
    void Add(std::string_view text) { m_texts.push_back(text); }

    void Add(const Proc::RecordSchema& record)
    {
        if (std::ranges::find(m_records, &record) != m_records.end())
        {
            return;
        }
        m_records.push_back(&record);
        for (const Proc::FieldSchema& field : record.fields)
        {
            Add(field.key);
            Add(*field.value);
        }
    }

    std::vector<std::string_view> Take() && { return std::move(m_texts); }

private:
    void Add(const Proc::ValueSchema& value)
    {
        for (const Proc::EnumNameRow& row : value.names ? value.names->rows : std::span<const Proc::EnumNameRow>())
        {
            Add(row.name);
        }
        if (value.record)
        {
            Add(value.record());
        }
        if (value.element)
        {
            Add(*value.element);
        }
    }

    std::vector<std::string_view> m_texts;
    std::vector<const Proc::RecordSchema*> m_records;
};

} // namespace

std::vector<std::string_view> ListStoredTexts()
{
    Lister lister;
    for (const std::string_view key : Proc::StoredKeys::RESERVED)
    {
        lister.Add(key);
    }
    lister.Add(Proc::ImplNames::FFMPEG_NAME);
    lister.Add(Proc::Reflected<HelperSettings>::Schema());
    for (const EffectClass& effectClass : EffectClasses())
    {
        lister.Add(effectClass.classId);
        if (const Proc::RecordSchema* schema = effectClass.getSchema())
        {
            lister.Add(*schema);
        }
    }
    return std::move(lister).Take();
}

} // namespace Ombrel::PhotoCore
