#ifndef UPGRADE_EXERCISE_H
#define UPGRADE_EXERCISE_H

#include "Proc/EffectSettings/EffectSettings.h"
#include "Proc/Settings/PixFmt.h"
#include "Proc/Settings/RgbaColor.h"
#include "Proc/Settings/Settings.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// What the consumer does with each record and settings class. The code is compiled with the headers of the release, so that
/// sizes, the places of members and the order of virtual operations are those of the release.
namespace Upgrade
{

/// Makes values that differ from each other.
struct Maker
{
    template <class T> T Made();

    std::int32_t count = 0;
};

template <class T> inline constexpr bool IS_VECTOR = false;
template <class T> inline constexpr bool IS_VECTOR<std::vector<T>> = true;
template <class T> inline constexpr bool IS_PAIR = false;
template <class A, class B> inline constexpr bool IS_PAIR<std::pair<A, B>> = true;

/// Records have an overload of their own, which write_records.py writes.
template <class T> void Change(T& value, Maker& make);

/// An object of the settings class, whose record is changed member by member, copied, moved, compared and read back.
template <class Effect> void Exercise();

} // namespace Upgrade

#include "Records.h"

namespace Upgrade
{

template <class T> void Change(T& value, Maker& make)
{
    if constexpr (std::is_same_v<T, bool>)
    {
        value = !value;
    }
    else if constexpr (std::is_same_v<T, Ombrel::PixFmt>)
    {
        // Stays: it has no name for many numbers.
    }
    else if constexpr (std::is_enum_v<T>)
    {
        value = static_cast<T>(static_cast<std::underlying_type_t<T>>(value) == 0 ? 1 : 0);
    }
    else if constexpr (std::is_arithmetic_v<T>)
    {
        value = static_cast<T>(++make.count % 100 + 1);
    }
    else if constexpr (std::is_same_v<T, std::string>)
    {
        value = "a text that stands outside of its object: " + std::to_string(++make.count);
    }
    else if constexpr (std::is_same_v<T, Ombrel::Proc::RgbaColor>)
    {
        const auto next = [&make] { return static_cast<std::uint8_t>(++make.count); };
        value = {.red = next(), .green = next(), .blue = next(), .alpha = next()};
    }
    else if constexpr (IS_PAIR<T>)
    {
        Change(value.first, make);
        Change(value.second, make);
    }
    else if constexpr (IS_VECTOR<T>)
    {
        value.resize(2);
        for (auto& element : value)
        {
            Change(element, make);
        }
    }
}

template <class T> T Maker::Made()
{
    T value{};
    Change(value, *this);
    return value;
}

/// An object in room of its size in the release, with a border behind it that must stay.
template <class T> class Guarded
{
public:
    Guarded()
    {
        std::ranges::fill(m_room, BORDER);
        if constexpr (std::is_default_constructible_v<T>)
        {
            m_object = ::new (static_cast<void*>(m_room.data())) T();
        }
        else
        {
            m_object = ::new (static_cast<void*>(m_room.data())) T(T::MakeDefault());
        }
    }

    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;
    ~Guarded() { m_object->~T(); }

    T& operator*() { return *m_object; }
    T* operator->() { return m_object; }

    bool IsBorderWhole() const
    {
        return std::all_of(m_room.begin() + sizeof(T), m_room.end(), [](std::byte byte) { return byte == BORDER; });
    }

private:
    static constexpr std::byte BORDER{0xA5};

    alignas(T) std::array<std::byte, sizeof(T) + 256> m_room;
    T* m_object;
};

inline std::string Stored(const std::shared_ptr<const Ombrel::PhotoCore::IEffectSettings>& effect)
{
    Ombrel::PropertyTree tree;
    Ombrel::PhotoCore::EffectSettings::SerializePtr(tree, effect);
    return Ombrel::WriteJson(tree, {.nonFiniteAsText = true});
}

template <class Effect> void Exercise()
{
    using Record = typename Effect::RecordType;
    Maker make;
    Guarded<Effect> effect;
    Guarded<Record> record;
    const std::string& id = record->GetClassId();
    std::cout << id << ": empty " << record->IsEmpty() << effect->IsEmpty();

    // The library writes its whole record into the object.
    effect->SetEffectSettings(Ombrel::PhotoCore::IEffectSettings::CreateEffectSettings(id)->GetEffectSettings());
    Change(*record, make);
    effect->GetTypedSettings() = *record;
    effect->HelperSetting().SetMaxWidth(77);
    const auto created = Ombrel::PhotoCore::IEffectSettings::CreateEffectSettings(id);
    created->SetEffectSettings(*record);
    dynamic_cast<Effect&>(*created).HelperSetting().SetMaxWidth(77);
    const std::string stored = Stored(created);
    std::cout << " changed " << record->IsEmpty() << effect->IsEmpty() << " inputs " << static_cast<int>(effect->GetInputType())
              << " equal " << effect->operator==(*created) << created->operator==(*effect)
              << record->IsEqualTo(created->GetEffectSettings());

    const Effect copy(*effect);
    Effect moved(std::move(*effect));
    const std::unique_ptr<Ombrel::Proc::Settings> clone(record->Clone());
    *record = dynamic_cast<const Record&>(*clone);
    std::cout << " copies " << (Stored(copy.Clone()) == Stored(moved.Clone())) << (Stored(moved.Clone()) == stored)
              << record->IsEqualTo(*clone) << " border " << effect.IsBorderWhole() << record.IsBorderWhole() << "\n  " << stored
              << '\n';

    std::shared_ptr<Ombrel::PhotoCore::IEffectSettings> back;
    Ombrel::PhotoCore::EffectSettings::DeserializePtr(Ombrel::ReadJson(stored, {.nonFiniteAsText = true}), back);
    const std::string again = Stored(back);
    std::cout << "  " << (again == stored ? "the same again" : again) << '\n';
}

} // namespace Upgrade

#endif
