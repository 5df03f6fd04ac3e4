#include "support/string_builder.h"

#include "support/memory_pages.h"
#include "support/text.h"

#include <algorithm>
#include <cstring>
#include <new>

using namespace Qt::StringLiterals;

static constexpr std::size_t Initial_Bytes = 1048576;

/// Characters that fill whole pages and are at least `characters`.
static std::size_t Round_To_Pages(std::size_t characters)
{
    const std::size_t page = Page_Size();
    return (characters * sizeof(char16_t) + page - 1) / page * page / sizeof(char16_t);
}

static void Copy(char16_t* to, const QChar* from, std::size_t characters)
{
    if (characters > 0)
        std::memcpy(to, from, characters * sizeof(char16_t));
}

static std::size_t Size_Of(QStringView text)
{
    return static_cast<std::size_t>(text.size());
}

static std::size_t Initial_Characters()
{
    return Round_To_Pages(Initial_Bytes / sizeof(char16_t));
}

clsStringBuilder::clsStringBuilder()
{
    Reallocate(Initial_Characters());
    buffer_[0] = 0;
}

clsStringBuilder::clsStringBuilder(const clsStringBuilder& other)
    : used_(other.used_), undo_kind_(other.undo_kind_), undo_position_(other.undo_position_),
      undo_length_(other.undo_length_), undo_text_(other.undo_text_), in_undo_(other.in_undo_)
{
    Reallocate(other.capacity_);
    std::copy_n(other.buffer_.get(), used_ + 1, buffer_.get());
}

clsStringBuilder& clsStringBuilder::operator=(const clsStringBuilder& other)
{
    if (this != &other)
        *this = clsStringBuilder(other);
    return *this;
}

void clsStringBuilder::Reallocate(std::size_t characters)
{
    char16_t* const old = buffer_.release();
    void* const memory = std::realloc(old, characters * sizeof(char16_t));
    if (memory == nullptr) {
        buffer_.reset(old);
        throw std::bad_alloc();
    }
    buffer_.reset(static_cast<char16_t*>(memory));
    capacity_ = characters;
}

void clsStringBuilder::Make_Room(std::size_t added)
{
    // The old capacity times 1.6 plus what is added.
    if (used_ + added + 1 > capacity_)
        Reallocate(Round_To_Pages(capacity_ * 8 / 5 + added));
}

void clsStringBuilder::Record(Undo_Kind kind, std::size_t position, std::size_t length)
{
    if (in_undo_)
        return;
    undo_kind_ = kind;
    undo_position_ = position;
    undo_length_ = length;
    if (!undo_text_.isNull())
        undo_text_.clear();
}

void clsStringBuilder::Record(Undo_Kind kind, std::size_t position, std::size_t length, const QString& taken)
{
    if (in_undo_)
        return;
    Record(kind, position, length);
    undo_text_ = taken;
}

QString clsStringBuilder::ToString() const
{
    return View().toString();
}

const char16_t* clsStringBuilder::ToStringPtr() const
{
    return used_ == 0 ? nullptr : buffer_.get();
}

QString clsStringBuilder::ToStringLeft(std::ptrdiff_t length) const
{
    return View().first(std::clamp<std::ptrdiff_t>(length, 0, Length())).toString();
}

QString clsStringBuilder::ToStringMid(std::ptrdiff_t position, std::ptrdiff_t length) const
{
    if (position < 1 || position > Length() || length <= 0)
        return {};
    return View().sliced(position - 1, std::min(length, Length() - position + 1)).toString();
}

QString clsStringBuilder::ToStringRight(std::ptrdiff_t length) const
{
    return View().last(std::clamp<std::ptrdiff_t>(length, 0, Length())).toString();
}

void clsStringBuilder::Clear()
{
    if (capacity_ > Initial_Characters()) {
        buffer_.reset();
        Reallocate(Initial_Characters());
    }
    used_ = 0;
    buffer_[0] = 0;
    undo_kind_ = Undo_Kind::Nothing;
    undo_text_.clear();
}

void clsStringBuilder::AppendNL(QStringView text)
{
    Append(text);
    Append(Line_Break);
}

void clsStringBuilder::Append(QStringView text)
{
    if (text.isEmpty())
        return;
    Make_Room(Size_Of(text));
    Copy(buffer_.get() + used_, text.data(), Size_Of(text));
    Record(Undo_Kind::Append, used_, Size_Of(text));
    used_ += Size_Of(text);
    buffer_[used_] = 0;
}

void clsStringBuilder::AppendLine(QStringView text)
{
    Make_Room(Size_Of(text) + 2);
    Record(Undo_Kind::Append, used_, Size_Of(text) + 2);
    Copy(buffer_.get() + used_, text.data(), Size_Of(text));
    used_ += Size_Of(text);
    buffer_[used_++] = u'\r';
    buffer_[used_++] = u'\n';
    buffer_[used_] = 0;
}

void clsStringBuilder::Insert(std::ptrdiff_t position, QStringView text)
{
    if (text.isEmpty() || position < 1 || position > Length() + 1)
        return;
    const std::size_t at = static_cast<std::size_t>(position - 1);
    Make_Room(Size_Of(text));
    char16_t* const place = buffer_.get() + at;
    std::memmove(place + Size_Of(text), place, (used_ - at + 1) * sizeof(char16_t));
    Copy(place, text.data(), Size_Of(text));
    used_ += Size_Of(text);
    Record(Undo_Kind::Insert, at, Size_Of(text));
}

void clsStringBuilder::Overwrite(std::ptrdiff_t position, QStringView text)
{
    if (text.isEmpty() || position < 1 || position > Length() + 1)
        return;
    const std::size_t at = static_cast<std::size_t>(position - 1);
    Record(Undo_Kind::Overwrite, at, Size_Of(text), ToStringMid(position, text.size()));
    const std::size_t end = at + Size_Of(text);
    if (end > used_)
        Make_Room(end - used_);
    Copy(buffer_.get() + at, text.data(), Size_Of(text));
    if (end > used_) {
        used_ = end;
        buffer_[used_] = 0;
    }
}

void clsStringBuilder::Remove(std::ptrdiff_t position, std::ptrdiff_t length)
{
    if (length <= 0 || position < 1 || position > Length())
        return;
    const std::size_t at = static_cast<std::size_t>(position - 1);
    const std::size_t count = std::min(static_cast<std::size_t>(length), used_ - at);
    Record(Undo_Kind::Remove, at, count, ToStringMid(position, length));
    char16_t* const place = buffer_.get() + at;
    std::memmove(place, place + count, (used_ - at - count + 1) * sizeof(char16_t));
    used_ -= count;
}

void clsStringBuilder::Undo()
{
    in_undo_ = true;
    const std::ptrdiff_t position = static_cast<std::ptrdiff_t>(undo_position_) + 1;
    switch (undo_kind_) {
    case Undo_Kind::Nothing:
        break;
    case Undo_Kind::Append:
        used_ = undo_position_;
        buffer_[used_] = 0;
        break;
    case Undo_Kind::Insert:
        Remove(position, static_cast<std::ptrdiff_t>(undo_length_));
        break;
    case Undo_Kind::Overwrite: {
        Overwrite(position, undo_text_);
        const std::size_t end = undo_position_ + undo_length_;
        // The overwriting ran past the old end: what was there is back, the rest goes.
        if (Size_Of(undo_text_) < undo_length_ && used_ == end) {
            used_ = undo_position_ + Size_Of(undo_text_);
            buffer_[used_] = 0;
        }
        break;
    }
    case Undo_Kind::Remove:
        Insert(position, undo_text_);
        break;
    }
    undo_kind_ = Undo_Kind::Nothing;
    undo_text_.clear();
    in_undo_ = false;
}

bool clsStringBuilder::Undo_If(Undo_Kind kind)
{
    if (undo_kind_ != kind)
        return false;
    Undo();
    return true;
}

std::ptrdiff_t clsStringBuilder::Find(std::ptrdiff_t start, QStringView text, QStringView delimiter,
                                      Compare compare) const
{
    const QStringView whole = View();
    if (whole.isEmpty() || start < 1 || start > Length())
        return 0;
    const Qt::CaseSensitivity sensitivity = compare == Compare::Without_Case ? Qt::CaseInsensitive : Qt::CaseSensitive;
    if (delimiter.isEmpty())
        return text.isEmpty() ? 0 : whole.indexOf(text, start - 1, sensitivity) + 1;

    if (start == 1) {
        if (whole.size() == text.size() && whole.compare(text, sensitivity) == 0)
            return 1;
        if (whole.size() >= text.size() + delimiter.size() && whole.startsWith(text, sensitivity) &&
            whole.sliced(text.size()).startsWith(delimiter, sensitivity))
            return 1;
    }
    const QString field = delimiter.toString() + text.toString() + delimiter.toString();
    const qsizetype inside = whole.indexOf(field, start - 1, sensitivity);
    if (inside >= 0)
        return inside + delimiter.size() + 1;
    const QString last_field = delimiter.toString() + text.toString();
    if (whole.endsWith(last_field, sensitivity))
        return whole.size() - text.size() + 1;
    return 0;
}
