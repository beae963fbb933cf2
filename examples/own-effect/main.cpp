// Registers the effect, stores it in a list beside one of the library's own, and reads the list back.

#include "FrameSettings.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/EffectSettings/VibranceSettings.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <iostream>
#include <memory>
#include <utility>

using namespace Ombrel;

int main()
try
{
    PhotoCore::RegisterEffectClass<Studio::FrameSettings>(); // once, before the first effect is read

    Studio::SettingsEffectFrame frame;
    frame.SetWidth(12);
    frame.m_style = Studio::SettingsEffectFrame::Style::Double;
    const PhotoCore::IEffectSettings::List effects{PhotoCore::VibranceSettings::CreateBase(),
                                                   Studio::FrameSettings::Create(frame)};

    PropertyTree look;
    for (const auto& effect : effects)
    {
        PropertyTree tree;
        PhotoCore::EffectSettings::SerializePtr(tree, effect);
        look.append(std::move(tree));
    }
    const std::string text = WriteJson(look);
    std::cout << text << '\n';

    std::shared_ptr<PhotoCore::IEffectSettings> back;
    const PropertyTree stored = ReadJson(text);
    PhotoCore::EffectSettings::DeserializePtr(stored.getList().at(1), back);
    std::cout << back->GetClassId() << (*back == *effects[1] ? " came back equal" : " came back otherwise") << '\n';

    back->GetPropertyAccess()->SetProperty("width", -3); // through the setter
    std::cout << "a negative width gives " << back->GetPropertyAccess()->GetProperty("width").getScalar().toInt() << '\n';
}
catch (const std::exception& failure)
{
    std::cerr << DescribeFailure(failure) << '\n';
    return 1;
}
