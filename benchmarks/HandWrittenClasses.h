#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_CLASSES_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_CLASSES_H

#include "HandWritten.h"
#include "HandWrittenLists.h"
#include "TreeFormat.h"

#include <array>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Ombrel::Benchmarks
{

template <class... Records> struct RecordList
{
    static constexpr std::size_t SIZE = sizeof...(Records);
    static constexpr std::array<std::string_view, SIZE> IDS{Records::CLASS_NAME...};

    /// So few are found fastest one by one, since most differ in length.
    static std::size_t IndexOf(std::string_view id)
    {
        for (std::size_t i = 0; i < SIZE; ++i)
        {
            if (IDS[i] == id)
            {
                return i;
            }
        }
        throw std::out_of_range("no hand-written effect: " + std::string(id));
    }

    /// `Function<Record>` for each.
    template <template <class> class Function> static constexpr std::array TABLE{&Function<Records>::Call...};
};

using Classes = RecordList<Proc::SettingsEffectAcid, Proc::SettingsEffectAdjuster, Proc::SettingsEffectBiColorToning,
                           Proc::SettingsEffectBlurRadial, Proc::SettingsEffectColorBalance,
                           Proc::SettingsEffectColorBalanceAuto, Proc::SettingsEffectDetailsEnhance, Proc::SettingsEffectEmpty,
                           Proc::SettingsEffectFaceThinning, Proc::SettingsEffectGradient, Proc::SettingsEffectNegateVideo,
                           Proc::SettingsEffectSmartBlur, Proc::SettingsEffectVibrance>;

template <class Record> class HandWrittenSettings final : public HandWrittenEffect
{
public:
    const std::string& GetClassId() const override { return Record::CLASS_ID; }

    void Serialize(PropertyTree& tree) const override
    {
        const std::size_t baseCount = CountBase();
        PropertyTree::Map& content = tree.makeMap(CountFields(m_record) + baseCount);
        TreeFormat::Map map(content);
        WriteFields(map, m_record);
        WriteBase(content, baseCount);
    }

    void SerializeWithId(PropertyTree& tree) const override
    {
        const std::size_t baseCount = CountBase();
        PropertyTree::Map& content = tree.makeMap(1 + CountFields(m_record) + baseCount);
        Identified map{TreeFormat::Map(content)};
        WriteFields(map, m_record);
        WriteBase(content, baseCount);
    }

    void Deserialize(const PropertyTree& tree) override { Read(tree, 0); }

    std::size_t ClassIndex() const noexcept override { return CLASS_INDEX; }

    std::shared_ptr<IEffectSettings> Clone() const override { return std::make_shared<HandWrittenSettings>(*this); }
    const Proc::Settings& GetEffectSettings() const override { return m_record; }
    Proc::Settings& GetEffectSettingsRef() override { return m_record; }
    InputType GetInputType() override { return InputType::One; }

    void SetEffectSettings(const Proc::Settings& record) override { m_record = dynamic_cast<const Record&>(record); }
    void Add(const IEffectSettings&) override {}

    bool operator==(const IEffectSettings& other) const override
    {
        const auto* same = dynamic_cast<const HandWrittenSettings*>(&other);
        return same && Same(m_record, same->m_record);
    }

protected:
    void Read(const PropertyTree& tree, std::size_t idCount) override
    {
        auto cursor = TreeFormat::CursorOf(tree);
        ReadFields(cursor, m_record);
        if (cursor.Found() + idCount != tree.getMap().size())
        {
            ReadBase(tree.getMap());
        }
    }

private:
    static inline const std::size_t CLASS_INDEX = Classes::IndexOf(Record::CLASS_NAME);

    Record m_record;
};

} // namespace Ombrel::Benchmarks

#endif
