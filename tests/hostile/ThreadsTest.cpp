#include "Exception/Exception.h"
#include "Proc/Reflection/Schema.h"
#include "catalogue/CatalogueFixture.h"

#include <array>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

// Different objects belong to different threads without any lock, and a tree or an effect that nobody changes belongs to all of
// them. What the threads share behind their backs, the default records and the registry, must not show. A race that does no
// harm to the values is for the thread sanitizer to see.
namespace Catalogue
{
namespace
{

constexpr std::size_t THREADS = 8;

// Where `count` threads wait for each other. Not std::barrier: with libstdc++ 12 for Windows a thread was seen to wait for
// ever, though all had come.
class MeetingPoint
{
public:
    explicit MeetingPoint(std::size_t count) : m_missing(count) {}

    void Arrive()
    {
        const std::lock_guard lock(m_mutex);
        if (--m_missing == 0)
        {
            m_complete.notify_all();
        }
    }

    void ArriveAndWait()
    {
        Arrive();
        std::unique_lock lock(m_mutex);
        m_complete.wait(lock, [this] { return m_missing == 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_complete;
    std::size_t m_missing;
};

// Runs `work` with the thread's number on all threads, which begin at the same moment.
void OnAllThreads(const std::function<void(std::size_t)>& work)
{
    MeetingPoint start(THREADS);
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number < THREADS; ++number)
    {
        threads.emplace_back(
            [&, number]
            {
                start.ArriveAndWait();
                work(number);
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

using EffectPtr = std::shared_ptr<IEffectSettings>;

} // namespace

class ThreadsTest : public CatalogueTest
{
protected:
    static PropertyTree NamedSample()
    {
        PropertyTree tree = SampleForm();
        tree["name"] = GetParam().classId;
        return tree;
    }

    static void ExpectSample(const IEffectSettings& effect)
    {
        for (const Field& field : GetParam().fields)
        {
            EXPECT_EQ(Get(effect, field.key), Sample(field)) << GetParam().className << ", " << field.key;
        }
    }
};

// This test stands first and so runs before anything else that serialises: a default record is made when it is first asked for.
TEST_P(ThreadsTest, RaceTheFirstUseOfEachDefaultRecord)
{
    std::array<EffectPtr, THREADS> effects;
    std::ranges::generate(effects, &Make);
    const PropertyTree sample = SampleForm();
    const std::function<void(IEffectSettings&)> firstUses[] = {
        [](IEffectSettings& effect) { EXPECT_EQ(StoredForm(effect), DefaultTree()); },
        [](IEffectSettings& effect) { effect.Deserialize(Map({})); },
        [&sample](IEffectSettings& effect) { effect.Deserialize(sample); },
        [](IEffectSettings& effect)
        {
            for (const Field& field : GetParam().fields)
            {
                Set(effect, field.key, field.defaultValue);
            }
        },
        [](IEffectSettings& effect)
        {
            for (const Field& field : GetParam().fields)
            {
                EXPECT_EQ(Get(effect, field.key), field.defaultValue) << field.key;
            }
        },
        [](IEffectSettings& effect) { EXPECT_EQ(*effect.Clone() == effect, GetParam().equalsItsCopy); },
        [](IEffectSettings& effect) { EXPECT_EQ(effect.GetEffectSettings().IsEmpty(), GetParam().isRecordEmpty); },
        [](IEffectSettings&)
        {
            const auto* schema = FindClass(GetParam().className)->getSchema();
            EXPECT_TRUE(!schema || schema->defaults());
        },
    };
    static_assert(std::size(firstUses) == THREADS);
    OnAllThreads([&](std::size_t number) { firstUses[number](*effects[number]); });
    EXPECT_EQ(StoredForm(*Make()), DefaultTree());
}

TEST_P(ThreadsTest, UseDifferentObjects)
{
    OnAllThreads(
        [](std::size_t)
        {
            const EffectPtr effect = Make();
            effect->Deserialize(SampleForm());
            ExpectSample(*effect);
            const EffectPtr clone = effect->Clone();
            ExpectSample(*clone);
            EXPECT_EQ(StoredForm(*clone), StoredForm(*effect));
            EXPECT_EQ(*clone == *effect, GetParam().equalsItsCopy);
            clone->Add(*clone);
            for (const Field& field : GetParam().fields)
            {
                Set(*clone, field.key, field.defaultValue);
            }
            EXPECT_EQ(StoredForm(*Make()), DefaultTree());
        });
}

TEST_P(ThreadsTest, ReadOneTree)
{
    const PropertyTree tree = NamedSample();
    const bool isRegistered = GetParam().place != Place::None;
    OnAllThreads(
        [&](std::size_t)
        {
            EffectPtr effect;
            if (isRegistered)
            {
                EffectSettings::DeserializePtr(tree, effect);
            }
            else
            {
                effect = Make();
                effect->Deserialize(tree);
            }
            ExpectSample(*effect);
            EXPECT_EQ(PropertyTree(tree), tree);
        });
}

// All but the resizer, which keeps what it has written last.
TEST_P(ThreadsTest, AskOneEffect)
{
    if (GetParam().className == "ResizeSettings")
    {
        return;
    }
    const EffectPtr effect = Make();
    effect->Deserialize(SampleForm());
    const PropertyTree expected = StoredForm(*effect);
    const IEffectSettings& shared = *effect;
    OnAllThreads(
        [&](std::size_t)
        {
            ExpectSample(shared);
            EXPECT_EQ(StoredForm(shared), expected);
            EXPECT_EQ(shared == *shared.Clone(), GetParam().equalsItsCopy);
            EXPECT_EQ(IEffectSettings::Find(IEffectSettings::List{nullptr, effect}, GetParam().classId), effect);
            static_cast<void>(shared.IsEmpty());
            static_cast<void>(shared.GetEffectSettings().IsEmpty());
        });
}

INSTANTIATE_TEST_SUITE_P(All, ThreadsTest, testing::ValuesIn(Catalogue::All()),
                         [](const auto& row) { return row.param.className; });

// Of many entries that did not come in order, so that the map has an index.
TEST(Threads, ReadOneLargeTree)
{
    PropertyTree tree;
    for (int i = 0; i < 2000; ++i)
    {
        tree[std::to_string(i * 7919 % 2000)] = i;
    }
    const PropertyTree& shared = tree;
    OnAllThreads(
        [&](std::size_t)
        {
            for (int i = 0; i < 2000; ++i)
            {
                EXPECT_EQ(shared[std::to_string(i * 7919 % 2000)].getScalar().toInt(), i);
            }
            EXPECT_FALSE(shared.contains("2000"));
            EXPECT_EQ(std::distance(shared.getMap().begin(), shared.getMap().end()), 2000);
            EXPECT_EQ(PropertyTree(shared), shared);
        });
}

// All threads wait for each other at their deepest point, where they have come deeper together than one of them may.
TEST(Threads, NestEachByItself)
{
    MeetingPoint deepest(THREADS);
    IEffectSettings::RegisterFactory("waitsForTheOthers",
                                     [&deepest]
                                     {
                                         deepest.ArriveAndWait();
                                         return IEffectSettings::CreateEffectSettings("EFFECT_ACID");
                                     });
    PropertyTree tree = Map({{"name", "waitsForTheOthers"}});
    for (int level = 1; level < 200; ++level)
    {
        tree = Map({{"foregroundEffects", Support::List({tree})}, {"name", "EffectsPackageOneInputWithBrush"}});
    }
    OnAllThreads(
        [&](std::size_t number)
        {
            EffectPtr effect;
            try
            {
                EffectSettings::DeserializePtr(tree, effect);
            }
            catch (const std::length_error& failure)
            {
                deepest.Arrive();
                ADD_FAILURE() << "thread " << number << ": " << failure.what();
            }
        });
}

TEST(Threads, FailEachByItself)
{
    OnAllThreads(
        [](std::size_t number)
        {
            for (int round = 0; round < 100; ++round)
            {
                const std::string id = "EFFECT_NOTHING_" + std::to_string(number);
                try
                {
                    IEffectSettings::CreateEffectSettings(id);
                    ADD_FAILURE() << "was made";
                }
                catch (const Ombrel::Exception& failure)
                {
                    EXPECT_EQ(*boost::get_error_info<Ombrel::ErrorDescription>(failure),
                              "Unknown Effect Setting type (" + id + ")!");
                }
            }
        });
}

TEST(Threads, FindWhatAnotherRegisters)
{
    constexpr int count = 100;
    std::atomic<int> registered = 0;
    OnAllThreads(
        [&registered](std::size_t number)
        {
            const auto idOf = [](int index) { return "EFFECT_OF_A_THREAD_" + std::to_string(index); };
            if (number == 0)
            {
                for (int index = 0; index < count; ++index)
                {
                    IEffectSettings::RegisterFactory(idOf(index), EffectClasses()[0].create);
                    registered = index + 1;
                }
                return;
            }
            for (int known = 0; known < count;)
            {
                known = registered;
                EXPECT_EQ(IEffectSettings::CreateEffectSettings("EFFECT_VIBRANCE")->GetClassId(), "EFFECT_VIBRANCE");
                if (known != 0)
                {
                    EXPECT_TRUE(IEffectSettings::CreateEffectSettings(idOf(known - 1)));
                    EXPECT_TRUE(IEffectSettings::CreateEffectSettings(idOf(0)));
                }
            }
        });
}

TEST(Threads, FindTheClassesThatAnotherRegisters)
{
    constexpr int count = 100;
    std::atomic<int> registered = 0;
    OnAllThreads(
        [&registered](std::size_t number)
        {
            const auto idOf = [](int index) { return "EFFECT_CLASS_OF_A_THREAD_" + std::to_string(index); };
            if (number == 0)
            {
                for (int index = 0; index < count; ++index)
                {
                    const std::string id = idOf(index);
                    EffectClass effectClass = EffectClasses()[0];
                    effectClass.classId = id.c_str();
                    RegisterEffectClass(effectClass);
                    registered = index + 1;
                }
                return;
            }
            for (int known = 0; known < count;)
            {
                known = registered;
                if (known != 0)
                {
                    const std::string last = idOf(known - 1);
                    EXPECT_TRUE(IEffectSettings::CreateEffectSettings(last));
                    EXPECT_EQ(Ombrel::PhotoCore::FindEffectClass(last)->classId, last);
                    EXPECT_GE(Ombrel::PhotoCore::RegisteredClassIds().size(), static_cast<std::size_t>(known));
                }
                EXPECT_EQ(Ombrel::PhotoCore::FindEffectClass("EFFECT_VIBRANCE")->className, "VibranceSettings");
            }
        });
}

} // namespace Catalogue
