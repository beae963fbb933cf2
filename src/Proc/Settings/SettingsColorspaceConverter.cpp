#include "Proc/Settings/SettingsColorspaceConverter.h"

#include "Proc/Settings/PixFmtNames.h"
#include "Proc/Settings/RecordSource.h"

namespace Ombrel::Proc
{
namespace
{

struct ConverterFields
{
    using R = SettingsColorspaceConverter;

    // The record sets its pad colour as a whole, the tree holds it channel by channel.
    static void SetPadColorR(R& record, std::uint8_t value)
    {
        record.SetPadColor(value, record.GetPadColorG(), record.GetPadColorB());
    }

    static void SetPadColorG(R& record, std::uint8_t value)
    {
        record.SetPadColor(record.GetPadColorR(), value, record.GetPadColorB());
    }

    static void SetPadColorB(R& record, std::uint8_t value)
    {
        record.SetPadColor(record.GetPadColorR(), record.GetPadColorG(), value);
    }

    // The record has no way to empty its list, so that a second read extends what the first one left.
    static void AddFormats(R& record, const std::vector<PixFmt>& formats)
    {
        for (const PixFmt format : formats)
        {
            record.AddPixFmt(format);
        }
    }

    using List = FieldList<AccessorDescriptor<"padColorR", &SetPadColorR, &R::GetPadColorR>,
                           AccessorDescriptor<"padColorG", &SetPadColorG, &R::GetPadColorG>,
                           AccessorDescriptor<"padColorB", &SetPadColorB, &R::GetPadColorB>,
                           AccessorDescriptor<"hasAlpha", &R::SetHasAlpha, &R::GetHasAlpha>,
                           AccessorDescriptor<"multiplyAlpha", &R::SetMultiplyAlpha, &R::GetMultiplyAlpha>,
                           AccessorDescriptor<"forceDropAlpha", &R::SetForceDropAlpha, &R::GetForceDropAlpha>,
                           AccessorDescriptor<"requiredFormats", &AddFormats, &R::GetRequiredFormats>>;
};

} // namespace

OMBREL_EARLY_INIT const std::string SettingsColorspaceConverter::CLASS_ID = ClassIdText(CLASS_NAME);

const std::string& SettingsColorspaceConverter::GetClassId() const
{
    return ClassIdOf<SettingsColorspaceConverter>();
}

const RecordSchema& SettingsColorspaceConverter::Schema() noexcept
{
    return Describe<SettingsColorspaceConverter, ConverterFields::List>();
}

bool SettingsColorspaceConverter::IsEmpty() const
{
    return *this == Reflected<SettingsColorspaceConverter>::Default();
}

SettingsColorspaceConverter& SettingsColorspaceConverter::AddPixFmt(PixFmt format)
{
    SettingsPixelFormatConverter::AddPixFmt(format);
    return *this;
}

} // namespace Ombrel::Proc
