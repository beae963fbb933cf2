#include "PropertyTree/KnownTexts.h"

#include "OmbrelCompiler.h"
#include "OmbrelLasting.h"
#include "PropertyTree/KeyHead.h"

#include <atomic>
#include <bit>
#include <set>
#include <string>

namespace Ombrel
{
namespace
{

constinit std::atomic<KnownTexts::Source> g_source = nullptr;

KnownTexts Make()
{
    return KnownTexts(g_source.load(std::memory_order_acquire)());
}

// The beginning, the end and the length tell the library's texts apart.
std::size_t HashOf(const PropertyTreeKeyView& key) noexcept
{
    constexpr std::size_t headSize = sizeof(key.head);
    const std::size_t size = key.text.size();
    const std::uint64_t end = size <= headSize ? 0 : HeadOf(key.text.substr(size - headSize));
    return static_cast<std::size_t>(((key.head ^ std::rotl(end, 29) ^ size) * 0x9E3779B97F4A7C15) >> 32);
}

} // namespace

void KnownTexts::SetSource(Source source) noexcept
{
    g_source.store(source, std::memory_order_release);
}

const KnownTexts* KnownTexts::Get()
{
    const KnownTexts* made = GetIfMade();
    return made || !g_source.load(std::memory_order_relaxed) ? made : &Lasting<&Make>();
}

const KnownTexts* KnownTexts::GetIfMade() noexcept
{
    return LastingIfMade<&Make>();
}

OMBREL_COLD KnownTexts::KnownTexts(const std::vector<std::string_view>& texts)
{
    const std::set<std::string_view> sorted(texts.begin(), texts.end());
    m_numbers.resize(std::bit_ceil(4 * sorted.size() + 1));
    m_keys.reserve(sorted.size());
    for (const std::string_view text : sorted)
    {
        m_keys.push_back({std::string(text), HeadOf(text)});
        std::size_t place = HashOf(PropertyTreeKeyView(text)) % m_numbers.size();
        while (m_numbers[place] != 0)
        {
            place = (place + 1) % m_numbers.size();
        }
        m_numbers[place] = static_cast<std::uint16_t>(m_keys.size());
    }
}

const PropertyTreeKey* KnownTexts::Find(const PropertyTreeKeyView& text) const noexcept
{
    const std::size_t mask = m_numbers.size() - 1; // the size is a power of two
    for (std::size_t place = HashOf(text) & mask; m_numbers[place] != 0; place = (place + 1) & mask)
    {
        const PropertyTreeKey& key = m_keys[m_numbers[place] - 1U];
        if (key.head == text.head && key.text == text.text)
        {
            return &key;
        }
    }
    return nullptr;
}

} // namespace Ombrel
