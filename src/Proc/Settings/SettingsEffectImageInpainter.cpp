#include "Proc/Settings/SettingsEffectImageInpainter.h"

#include "Proc/Reflection/Folds.h"

namespace Ombrel::Proc
{

const std::string SettingsEffectImageInpainter::CLASS_ID{CLASS_NAME};

template <> struct Fields<SettingsEffectImageInpainter>
{
    using List = FieldList<>;
};

template struct Reflected<SettingsEffectImageInpainter>;

SettingsEffectImageInpainter::SettingsEffectImageInpainter()
{
    neuralMode = 1;
}

SettingsEffectImageInpainter::~SettingsEffectImageInpainter() = default;

} // namespace Ombrel::Proc
