// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/PackageText.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace Package
{

Text::Text(QString const& text)
{
    QByteArray const bytes = text.toUtf8();
    *this = ofUtf8({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

Text::Text(char const* utf8)
    : Text(QString::fromUtf8(utf8))
{
}

// Small enough that it is no loss if one text keeps it.
struct Text::Filling
{
    static constexpr std::size_t capacity = 16 * 1024 - 16;

    Filling() = default;
    Filling(Filling const&) = delete;
    Filling& operator=(Filling const&) = delete;
    ~Filling()
    {
        if (block) {
            release(std::exchange(block, nullptr));
        }
    }

    Block* block = nullptr;
    std::size_t used = 0;
};

Text Text::ofUtf8(std::string_view letters)
{
    static thread_local Filling filling;
    constexpr std::size_t longest = 1024;
    Text text;
    if (letters.empty()) {
        return text;
    }
    std::size_t const needed = sizeof(Head) + letters.size();
    Block* block = nullptr;
    std::size_t offset = sizeof(Block);
    if (letters.size() > longest) {
        block = newBlock(offset + needed);
        block->size = static_cast<quint32>(letters.size());
    } else {
        if (!filling.block || filling.used + needed > Filling::capacity) {
            Block* const fresh = newBlock(Filling::capacity);
            if (filling.block) {
                release(filling.block);
            }
            filling.block = fresh;
            filling.used = offset;
        }
        block = filling.block;
        offset = filling.used;
        // A head stands at an even place.
        filling.used += needed + needed % alignof(Head);
        std::atomic_ref(block->owners).fetch_add(1, std::memory_order_relaxed);
    }
    quint16 const size = letters.size() > longest ? isLong : static_cast<quint16>(letters.size());
    text.shared = new (reinterpret_cast<char*>(block) + offset) Head{static_cast<quint16>(offset), size};
    std::memcpy(text.shared + 1, letters.data(), letters.size());
    return text;
}

Text::Text(Text const& other) noexcept
    : shared(other.shared)
{
    if (shared) {
        std::atomic_ref(block()->owners).fetch_add(1, std::memory_order_relaxed);
    }
}

Text::Block* Text::newBlock(std::size_t bytes)
{
    void* const memory = std::malloc(bytes);
    if (!memory) {
        throw std::bad_alloc();
    }
    return new (memory) Block{1, 0};
}

void Text::release(Block* block) noexcept
{
    if (std::atomic_ref(block->owners).fetch_sub(1, std::memory_order_acq_rel) == 1) {
        std::free(block);
    }
}

QString Text::toString() const
{
    std::string_view const bytes = utf8();
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

int Text::compare(std::string_view left, std::string_view right)
{
    auto const [one, two] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    if (one == left.end() || two == right.end()) {
        return (one != left.end()) - (two != right.end());
    }
    return rank(*one) - rank(*two);
}

} // namespace Package
