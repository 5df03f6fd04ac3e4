#include "inspect/ebml_head.h"

#include <QFile>
#include <bit>

// Ebml_Element numbers, length mark included, as the format writes them.
static constexpr std::uint32_t Ebml_Header = 0x1A45DFA3;
static constexpr std::uint32_t Segment = 0x18538067;
static constexpr std::uint32_t Cluster = 0x1F43B675;
static constexpr std::uint32_t Segment_Info = 0x1549A966;
static constexpr std::uint32_t Timestamp_Scale = 0x2AD7B1;
static constexpr std::uint32_t Duration = 0x4489;

/// Elements that are looked at on one level: more is no head.
static constexpr int Most_Elements = 1000;

/// One element: what it is and where its content lies. `End` is nothing for an unknown size.
struct Ebml_Element
{
    std::uint32_t Number = 0;
    std::uint64_t Begin = 0;
    std::optional<std::uint64_t> End;
};

/// A number of 1 to `longest` bytes whose length the leading zeros of its first byte tell. With `keep_mark` the bit
/// that ends them stays in. Nothing at the file's end or for a longer one.
static std::optional<std::uint64_t> Read_Number(QIODevice& file, int longest, bool keep_mark, bool& all_ones)
{
    char first = 0;
    if (!file.getChar(&first))
        return std::nullopt;
    const auto byte = static_cast<std::uint8_t>(first);
    const int length = std::countl_zero(byte) + 1;
    if (length > longest)
        return std::nullopt;
    const QByteArray rest = file.read(length - 1);
    if (rest.size() != length - 1)
        return std::nullopt;
    const std::uint64_t mark = 0x80U >> static_cast<unsigned>(length - 1);
    std::uint64_t value = keep_mark ? byte : byte & (mark - 1);
    all_ones = (byte & (mark - 1)) == mark - 1;
    for (const char next : rest) {
        value = value << 8U | static_cast<std::uint8_t>(next);
        all_ones = all_ones && static_cast<std::uint8_t>(next) == 0xFF;
    }
    return value;
}

/// The element that begins at `place`; nothing if none fits in there.
static std::optional<Ebml_Element> Read_Ebml_Element(QIODevice& file, std::uint64_t place)
{
    if (place > static_cast<std::uint64_t>(file.size()) || !file.seek(static_cast<qint64>(place)))
        return std::nullopt;
    bool all_ones = false;
    const std::optional<std::uint64_t> number = Read_Number(file, 4, true, all_ones);
    const std::optional<std::uint64_t> size = number ? Read_Number(file, 8, false, all_ones) : std::nullopt;
    if (!size)
        return std::nullopt;
    Ebml_Element element{.Number = static_cast<std::uint32_t>(*number),
                         .Begin = static_cast<std::uint64_t>(file.pos()),
                         .End = std::nullopt};
    // Both have less than 2^57 and 2^63: the sum fits.
    if (!all_ones)
        element.End = element.Begin + *size;
    return element;
}

/// The content as a number without sign, up to eight bytes.
static std::optional<std::uint64_t> Read_Unsigned(QIODevice& file, const Ebml_Element& element)
{
    const std::uint64_t size = *element.End - element.Begin;
    if (size > 8 || !file.seek(static_cast<qint64>(element.Begin)))
        return std::nullopt;
    const QByteArray bytes = file.read(static_cast<qint64>(size));
    if (static_cast<std::uint64_t>(bytes.size()) != size)
        return std::nullopt;
    std::uint64_t value = 0;
    for (const char byte : bytes)
        value = value << 8U | static_cast<std::uint8_t>(byte);
    return value;
}

static std::optional<double> Read_Float(QIODevice& file, const Ebml_Element& element)
{
    const std::uint64_t size = *element.End - element.Begin;
    const std::optional<std::uint64_t> bits = Read_Unsigned(file, element);
    if (bits && size == 4)
        return static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(*bits)));
    return bits && size == 8 ? std::optional(std::bit_cast<double>(*bits)) : std::nullopt;
}

/// Calls `take` for each child of known size between `begin` and `end` until it returns false.
template <typename Take>
static void Each_Child(QIODevice& file, std::uint64_t begin, const std::optional<std::uint64_t>& end, Take take)
{
    std::uint64_t place = begin;
    for (int seen = 0; seen < Most_Elements && (!end || place < *end); ++seen) {
        const std::optional<Ebml_Element> child = Read_Ebml_Element(file, place);
        if (!child || !child->End || !take(*child))
            return;
        place = *child->End;
    }
}

/// The duration that the Info element tells, in seconds.
static std::optional<double> Read_Seconds(QIODevice& file, const Ebml_Element& info)
{
    std::uint64_t scale = 1'000'000;
    std::optional<double> ticks;
    Each_Child(file, info.Begin, info.End, [&](const Ebml_Element& child) {
        if (child.Number == Timestamp_Scale)
            scale = Read_Unsigned(file, child).value_or(scale);
        else if (child.Number == Duration)
            ticks = Read_Float(file, child);
        return true;
    });
    constexpr double nanoseconds = 1e9;
    // Not a number is no duration either.
    return ticks && *ticks >= 0 ? std::optional(*ticks * static_cast<double>(scale) / nanoseconds) : std::nullopt;
}

std::optional<Ebml_Head> Read_Ebml_Head(QIODevice& file)
{
    const std::optional<Ebml_Element> header = Read_Ebml_Element(file, 0);
    if (!header || header->Number != Ebml_Header || !header->End)
        return std::nullopt;
    const std::optional<Ebml_Element> segment = Read_Ebml_Element(file, *header->End);
    if (!segment || segment->Number != Segment)
        return std::nullopt;
    Ebml_Head head{.Segment_End = segment->End, .Seconds = std::nullopt};
    Each_Child(file, segment->Begin, segment->End, [&](const Ebml_Element& child) {
        if (child.Number == Segment_Info)
            head.Seconds = Read_Seconds(file, child);
        return child.Number != Segment_Info && child.Number != Cluster;
    });
    return head;
}

std::optional<Ebml_Head> Read_Ebml_Head(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? Read_Ebml_Head(file) : std::nullopt;
}
