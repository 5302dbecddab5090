#include "host/record/Field.h"

#include "host/record/FieldForms.h"
#include "host/record/RecordingFormat.h"

#include <algorithm>
#include <string_view>

namespace host {

namespace {

using namespace RecordingFormat;

// --- Numbers

void WriteNumber(const i64& number, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Number);
    bytes.PutSigned(number);
}

bool ReadNumber(i64& number, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Number))
        return false;
    number = bytes.TakeSigned();
    return true;
}

void WriteUnsigned(const u64& number, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Unsigned);
    bytes.PutUnsigned(number);
}

bool ReadUnsigned(u64& number, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Unsigned))
        return false;
    number = bytes.TakeUnsigned();
    return true;
}

template <class Real, Tag Kind> void WriteReal(const Real& number, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Kind);
    bytes.PutRaw(number);
}

template <class Real, Tag Kind> bool ReadReal(Real& number, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Kind))
        return false;
    number = bytes.TakeRaw<Real>();
    return true;
}

void WriteTick(const Tick& tick, ItemBytes& bytes, BoundaryNames& names)
{
    bytes.PutByte(Number);
    bytes.PutSigned(static_cast<i32>(tick.Milliseconds - names.LastTick));
    names.LastTick = tick.Milliseconds;
}

bool ReadTick(Tick& tick, ItemView& bytes, BoundaryNames& names)
{
    i64 step = 0;
    if (!ReadNumber(step, bytes, names))
        return false;
    names.LastTick += static_cast<u32>(step);
    tick.Milliseconds = names.LastTick;
    return true;
}

// --- Texts

void WriteText(const char* const& text, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(text ? Text : Null);
    if (text)
        bytes.PutText(text);
}

bool ReadText(const char*& text, ItemView& bytes, BoundaryNames& names)
{
    text = nullptr;
    if (bytes.Peek() == Null)
        return TakeTag(bytes, Null);
    if (!TakeTag(bytes, Text))
        return false;
    text = names.Keep(bytes.TakeText());
    return true;
}

void WriteString(const std::string& text, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Text);
    bytes.PutText(text);
}

bool ReadString(std::string& text, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Text))
        return false;
    text = bytes.TakeText();
    return true;
}

void WriteWide(const std::u16string& text, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(List);
    bytes.PutUnsigned(text.size());
    for (const char16_t unit : text)
        bytes.PutUnsigned(unit);
}

bool ReadWide(std::u16string& text, ItemView& bytes, BoundaryNames&)
{
    text.clear();
    if (!TakeTag(bytes, List))
        return false;
    for (u64 left = bytes.TakeUnsigned(); left > 0 && !bytes.IsBroken(); --left)
        text += static_cast<char16_t>(bytes.TakeUnsigned());
    return true;
}

void WriteTextList(const TextList& list, ItemBytes& bytes, BoundaryNames& names)
{
    const int count = list.Texts ? list.Count : 0;
    bytes.PutByte(List);
    bytes.PutUnsigned(static_cast<u64>(std::max(count, 0)));
    for (int index = 0; index < count; ++index)
        WriteText(list.Texts[index], bytes, names);
}

bool ReadTextList(TextList& list, ItemView& bytes, BoundaryNames& names)
{
    if (!TakeTag(bytes, List))
        return false;
    std::vector<char*> texts;
    for (u64 left = bytes.TakeUnsigned(); left > 0; --left) {
        const char* text = nullptr;
        if (!ReadText(text, bytes, names) || bytes.IsBroken())
            return false;
        texts.push_back(const_cast<char*>(text)); // it lies in memory of ours
    }
    list.Count = static_cast<int>(texts.size());
    texts.push_back(nullptr);
    list.Texts = names.KeepTexts(std::move(texts));
    return true;
}

void WriteTextBuffer(const TextBuffer& buffer, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Text);
    bytes.PutText(buffer.Bytes ? std::string_view(buffer.Bytes, strnlen(buffer.Bytes, buffer.Size)) : "");
}

bool ReadTextBuffer(TextBuffer& buffer, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Text))
        return false;
    const std::string_view text = bytes.TakeText();
    if (bytes.IsBroken() || !buffer.Bytes || text.size() > buffer.Size)
        return text.empty() && !bytes.IsBroken();
    text.copy(buffer.Bytes, text.size());
    if (text.size() < buffer.Size)
        buffer.Bytes[text.size()] = 0;
    return true;
}

// --- Drawing

void WritePoint(const _Point2i& point, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Point);
    bytes.PutSigned(point.x);
    bytes.PutSigned(point.y);
}

bool ReadPoint(_Point2i& point, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Point))
        return false;
    point.x = static_cast<i32>(bytes.TakeSigned());
    point.y = static_cast<i32>(bytes.TakeSigned());
    return true;
}

void WritePlace(const _Point3f& point, ItemBytes& bytes, BoundaryNames& names)
{
    for (const float part : {point.x, point.y, point.z})
        WriteReal<float, Single>(part, bytes, names);
}

bool ReadPlace(_Point3f& point, ItemView& bytes, BoundaryNames& names)
{
    return ReadReal<float, Single>(point.x, bytes, names) && ReadReal<float, Single>(point.y, bytes, names)
        && ReadReal<float, Single>(point.z, bytes, names);
}

void PutSides(const tagRECT& rect, ItemBytes& bytes)
{
    for (const i32 side : {rect.left, rect.top, rect.right, rect.bottom})
        bytes.PutSigned(side);
}

tagRECT TakeSides(ItemView& bytes)
{
    tagRECT rect;
    for (i32* side : {&rect.left, &rect.top, &rect.right, &rect.bottom})
        *side = static_cast<i32>(bytes.TakeSigned());
    return rect;
}

void WriteRect(const tagRECT& rect, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Rectangle);
    PutSides(rect, bytes);
}

bool ReadRect(tagRECT& rect, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Rectangle))
        return false;
    rect = TakeSides(bytes);
    return true;
}

// The record as it lies in memory: a frame has hundreds of them.
void WriteImage(const TeskDrawRecord& record, ItemBytes& bytes, BoundaryNames&)
{
    bytes.PutByte(Image);
    bytes.PutBytes({reinterpret_cast<const char*>(&record), sizeof record});
}

bool ReadImage(TeskDrawRecord& record, ItemView& bytes, BoundaryNames&)
{
    if (!TakeTag(bytes, Image))
        return false;
    record = bytes.TakeRaw<TeskDrawRecord>();
    return true;
}

void WriteImages(const ImageList& images, ItemBytes& bytes, BoundaryNames& names)
{
    bytes.PutByte(List);
    bytes.PutUnsigned(images.Count);
    for (u32 index = 0; index < images.Count; ++index)
        WriteImage(images.Records[index], bytes, names);
}

// Images go to the host alone, and nobody gives them back.
bool ReadImages(ImageList&, ItemView&, BoundaryNames&)
{
    return false;
}

} // namespace

template <> const FieldForm& FormOf<i64>()
{
    return MakeForm<i64, WriteNumber, ReadNumber>;
}

template <> const FieldForm& FormOf<u64>()
{
    return MakeForm<u64, WriteUnsigned, ReadUnsigned>;
}

template <> const FieldForm& FormOf<float>()
{
    return MakeForm<float, WriteReal<float, Single>, ReadReal<float, Single>>;
}

template <> const FieldForm& FormOf<double>()
{
    return MakeForm<double, WriteReal<double, Double>, ReadReal<double, Double>>;
}

template <> const FieldForm& FormOf<const char*>()
{
    return MakeForm<const char*, WriteText, ReadText>;
}

template <> const FieldForm& FormOf<std::string>()
{
    return MakeForm<std::string, WriteString, ReadString>;
}

template <> const FieldForm& FormOf<std::u16string>()
{
    return MakeForm<std::u16string, WriteWide, ReadWide>;
}

template <> const FieldForm& FormOf<TextList>()
{
    return MakeForm<TextList, WriteTextList, ReadTextList>;
}

template <> const FieldForm& FormOf<TextBuffer>()
{
    return MakeForm<TextBuffer, WriteTextBuffer, ReadTextBuffer>;
}

template <> const FieldForm& FormOf<Tick>()
{
    return MakeForm<Tick, WriteTick, ReadTick>;
}

template <> const FieldForm& FormOf<_Point2i>()
{
    return MakeForm<_Point2i, WritePoint, ReadPoint>;
}

template <> const FieldForm& FormOf<_Point3f>()
{
    return MakeForm<_Point3f, WritePlace, ReadPlace>;
}

template <> const FieldForm& FormOf<tagRECT>()
{
    return MakeForm<tagRECT, WriteRect, ReadRect>;
}

template <> const FieldForm& FormOf<TeskDrawRecord>()
{
    return MakeForm<TeskDrawRecord, WriteImage, ReadImage>;
}

template <> const FieldForm& FormOf<ImageList>()
{
    return MakeForm<ImageList, WriteImages, ReadImages>;
}

} // namespace host
