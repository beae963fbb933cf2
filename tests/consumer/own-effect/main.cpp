// An effect of a caller's own, through everything that the library does with its own effects.

#include "Expect.h"
#include "FrameSettings.h"

#include "Exception/Exception.h"
#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/EffectSettings/EffectSettingsExport.h"
#include "Proc/Settings/SettingsEffectColorBalanceAuto.h"
#include "PropertyTree/PropertyTree.h"

#include <boost/exception/get_error_info.hpp>
#include <iostream>
#include <memory>
#include <string>

namespace
{

using namespace Studio;
using Ombrel::PropertyTree;
using Ombrel::PhotoCore::EffectSettings;
using Ombrel::PhotoCore::IEffectSettings;

// What an exception of the library says when it is caught here, in another module.
template <class Action> std::string ErrorOf(Action action)
{
    try
    {
        action();
    }
    catch (const Ombrel::Exception& error)
    {
        const std::string* text = boost::get_error_info<Ombrel::ErrorDescription>(error);
        return text != nullptr ? *text : "an exception without a description";
    }
    return "no exception";
}

void TestRegistry()
{
    Expect("before registration", ErrorOf([] { IEffectSettings::CreateEffectSettings("EFFECT_FRAME"); }),
           "Unknown Effect Setting type (EFFECT_FRAME)!");

    Ombrel::PhotoCore::RegisterEffectClass<FrameSettings>();
    Expect("second registration", ErrorOf([] { IEffectSettings::RegisterFactory("EFFECT_FRAME", &FrameSettings::CreateBase); }),
           "Duplicate class id (EFFECT_FRAME)!");

    Expect("class", Ombrel::PhotoCore::FindEffectClass("EFFECT_FRAME")->className, "FrameSettings");
    const auto effect = IEffectSettings::CreateEffectSettings("EFFECT_FRAME");
    Expect("class id", effect->GetClassId(), "EFFECT_FRAME");
    Expect("made by the own class", dynamic_cast<FrameSettings*>(effect.get()) != nullptr, true);
    Expect("IsEmpty of a new frame", effect->IsEmpty(), true);
}

void TestPropertyAccess()
{
    FrameSettings frame;
    const auto properties = frame.GetPropertyAccess();
    std::string keys;
    for (const std::string& key : properties->ListProperties())
    {
        keys += key + " ";
    }
    Expect("properties", keys, "color dashes isInside style width ");

    properties->SetProperty("width", -7);
    Expect("width after -7", frame.GetTypedSettings().GetWidth(), 0);
    properties->SetProperty("width", 12);
    Expect("width after 12", frame.GetTypedSettings().GetWidth(), 12);
    properties->SetProperty("style", "double");
    Expect("style", properties->GetProperty("style").getScalar().toString(), "double");
    Expect("colour", properties->GetProperty("color").getScalar().toString(), "000000ff");
    Expect("IsEmpty of a wide frame", frame.IsEmpty(), false);
}

void TestRoundTrip()
{
    SettingsEffectFrame record;
    record.SetWidth(3);
    record.m_style = SettingsEffectFrame::Style::Double;
    record.m_color = {.red = 255, .green = 128, .blue = 0, .alpha = 255};
    record.m_dashes = {2.5, 1.0};
    const auto frame = FrameSettings::Create(record);

    PropertyTree tree;
    EffectSettings::SerializePtr(tree, frame);
    Expect("keys", tree.getMap().size(), 5U);
    Expect("name", tree["name"].getScalar().toString(), "EFFECT_FRAME");
    Expect("width", tree["width"].getScalar().toInt(), 3);
    Expect("style", tree["style"].getScalar().toString(), "double");
    Expect("colour", tree["color"].getScalar().toString(), "ff8000ff");
    Expect("first dash", tree["dashes"].getList().at(0).getScalar().toDouble(), 2.5);

    std::shared_ptr<IEffectSettings> back;
    EffectSettings::DeserializePtr(tree, back);
    Expect("equal after the round trip", *back == *frame, true);
    dynamic_cast<FrameSettings&>(*back).GetTypedSettings().m_isInside = true;
    Expect("equal after a change", *back == *frame, false);
    Expect("clone equals its original", *back->Clone() == *back, true);
}

// The ids of the library's classes are exported objects, of which a program may hold the only constructed copy. What the
// library returns is another object.
void TestExportedObjects()
{
    using Ombrel::Proc::SettingsEffectColorBalanceAuto;
    Expect("exported id", SettingsEffectColorBalanceAuto::CLASS_ID, "EFFECT_COLOR_BALANCE_AUTO");
    const SettingsEffectColorBalanceAuto record;
    Expect("id of a record", record.GetClassId(), SettingsEffectColorBalanceAuto::CLASS_ID);
}

} // namespace

int main()
{
    TestRegistry();
    TestPropertyAccess();
    TestRoundTrip();
    TestExportedObjects();
    std::cout << "own effect: fine\n";
}
