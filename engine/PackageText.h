// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHashFunctions>
#include <QString>
#include <QTypeInfo>
#include <functional>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace Package
{

/// A text of an entry: one pointer, with the letters in UTF-8 behind it, since the table keeps hundreds of
/// thousands of them. Copies share the letters, and texts that one thread makes one after the other share a
/// block of memory, which goes with the last of them. Half a surrogate pair, which isn't Unicode, is
/// not kept. Any thread, as a QString.
class Text
{
public:
    Text() = default;
    Text(QString const& text); // NOLINT(google-explicit-constructor): stands where a QString did
    Text(char const* utf8);    // NOLINT(google-explicit-constructor): the same
    /// Of letters that are valid UTF-8.
    [[nodiscard]] static Text ofUtf8(std::string_view letters);
    Text(Text const& other) noexcept;
    Text(Text&& other) noexcept
        : shared(other.shared)
    {
        other.shared = nullptr;
    }
    Text& operator=(Text other) noexcept
    {
        swap(other);
        return *this;
    }
    ~Text()
    {
        if (shared) {
            release(block());
        }
    }
    void swap(Text& other) noexcept { std::swap(shared, other.shared); }

    /// UTF-8; stays for as long as a copy of the text does.
    [[nodiscard]] std::string_view utf8() const
    {
        return shared ? std::string_view(letters(), size()) : std::string_view();
    }
    /// Where the letters will be found, without a look at the text's memory. Not to be read from.
    [[nodiscard]] void const* place() const { return shared; }
    [[nodiscard]] bool isEmpty() const { return !shared; }
    void clear() { Text().swap(*this); }
    [[nodiscard]] QString toString() const;
    operator QString() const { return toString(); } // NOLINT(google-explicit-constructor)

    /// The order of the QStrings, that of UTF-16: below 0, 0 or above 0.
    [[nodiscard]] int compare(Text const& other) const { return compare(utf8(), other.utf8()); }
    [[nodiscard]] static int compare(std::string_view left, std::string_view right);
    /// The place of a byte of UTF-8 in that order: texts compare as the places of their bytes do.
    [[nodiscard]] static constexpr unsigned char rank(char byte)
    {
        auto const value = static_cast<unsigned char>(byte);
        // In UTF-16, characters of two units stand before U+E000; in UTF-8 those of four bytes are the last.
        constexpr unsigned char lowest = 0xee, fourBytes = 0xf0, highest = 0xf4;
        if (value < lowest || value > highest) {
            return value;
        }
        return static_cast<unsigned char>(value < fourBytes ? value + 5 : value - 2);
    }

    friend bool operator==(Text const& left, Text const& right)
    {
        return left.shared == right.shared || left.utf8() == right.utf8();
    }
    friend bool operator==(Text const& left, QString const& right) { return left.toString() == right; }
    friend bool operator==(Text const& left, char const* right) { return left.utf8() == right; }
    friend bool operator<(Text const& left, Text const& right) { return left.compare(right) < 0; }
    friend std::size_t qHash(Text const& text, std::size_t seed = 0) noexcept
    {
        std::string_view const letters = text.utf8();
        return qHashBits(letters.data(), letters.size(), seed);
    }

private:
    /// What texts lie in, behind one another.
    struct Block
    {
        quint32 owners; ///< how many texts and threads hold it; counted by atomic operations
        quint32 size;   ///< bytes of the letters of a long text, which has a block of its own
    };
    /// What stands before the letters.
    struct Head
    {
        quint16 offset; ///< from the block's beginning
        quint16 size;   ///< bytes; `isLong` for a long text
    };
    /// The block that a thread fills.
    struct Filling;
    static constexpr quint16 isLong = 0xffff;

    [[nodiscard]] Block* block() const
    {
        return reinterpret_cast<Block*>(reinterpret_cast<char*>(shared) - shared->offset);
    }
    [[nodiscard]] char const* letters() const { return reinterpret_cast<char const*>(shared + 1); }
    [[nodiscard]] std::size_t size() const { return shared->size == isLong ? block()->size : shared->size; }
    static Block* newBlock(std::size_t bytes);
    static void release(Block* block) noexcept;

    Head* shared = nullptr; ///< null for the empty text
};

/// Texts that are told apart by their letters, and found by these alone.
struct TextHash
{
    using is_transparent = void;
    std::size_t operator()(std::string_view letters) const { return std::hash<std::string_view>()(letters); }
    std::size_t operator()(Text const& text) const { return (*this)(text.utf8()); }
};
struct TextEqual
{
    using is_transparent = void;
    bool operator()(Text const& left, Text const& right) const { return left == right; }
    bool operator()(Text const& left, std::string_view right) const { return left.utf8() == right; }
    bool operator()(std::string_view left, Text const& right) const { return left == right.utf8(); }
};
using TextSet = std::unordered_set<Text, TextHash, TextEqual>;

} // namespace Package

Q_DECLARE_TYPEINFO(Package::Text, Q_RELOCATABLE_TYPE);
