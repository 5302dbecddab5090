// Drawing, fonts and images of the recording host.

#include "host/probe/RecordingHost.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"

bool RecordingHost::TracesDrawing() const
{
    return m_Session.Output.Traces(TraceGroup::Draw);
}

void RecordingHost::DrawRect(const tagRECT& rect, u32 color)
{
    if (TracesDrawing())
        m_Session.Output.Line("DrawRect " + RectText(rect) + ' ' + ColorText(color));
}

bool RecordingHost::DrawTexturedRect(const TeskDrawRecord& record)
{
    if (TracesDrawing())
        m_Session.Output.Line("DrawTexturedRect " + ImageText(record));
    return !m_Session.Refusals.Refuses(HostOperation::DrawTexturedRect);
}

bool RecordingHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    if (TracesDrawing()) {
        m_Session.Output.Line("DrawTexturedRects " + std::to_string(count));
        for (u32 index = 0; index < count; ++index)
            m_Session.Output.Line("- " + ImageText(records[index]));
    }
    return !m_Session.Refusals.Refuses(HostOperation::DrawTexturedRects);
}

bool RecordingHost::DrawLine(const TeskDrawRecord& record, u32 width)
{
    if (TracesDrawing())
        m_Session.Output.Line("DrawLine " + LineRecordText(record, width));
    return !m_Session.Refusals.Refuses(HostOperation::DrawLine);
}

u32 RecordingHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    if (TracesDrawing())
        m_Session.Output.Line("DrawText " + QuotedOrNull(text) + ' ' + RectText(box) + ' ' + ColorText(color)
            + " format=" + std::to_string(format) + " font " + std::to_string(font));
    if (m_Session.Refusals.Refuses(HostOperation::DrawText) || !text)
        return 0;
    return static_cast<u32>(m_Session.Drawing.TextWidth(text));
}

u32 RecordingHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    TracedCall call(m_Session.Output, HostOperation::CreateFontResource);
    call.Text(name).Number(height).Argument(BoolText(fixed)).Argument(BoolText(bold));
    const u32 font = m_Session.Refusals.Refuses(HostOperation::CreateFontResource) ? 0 : m_Session.Drawing.AddFont();
    call.ReturnsId("font", font);
    return font;
}

void RecordingHost::ReleaseFontResource(u32 font)
{
    TracedCall(m_Session.Output, HostOperation::ReleaseFontResource).Id("font", font);
}

void RecordingHost::MeasureText(u32 font, const char* text, int& width)
{
    TracedCall call(m_Session.Output, HostOperation::MeasureText);
    call.Id("font", font).Text(text);
    if (m_Session.Refusals.Refuses(HostOperation::MeasureText) || !text)
        return;

    width = m_Session.Drawing.TextWidth(text);
    call.Returns(std::to_string(width));
}

bool RecordingHost::GetGlyphMetrics(u32 font, u32 first, u32 last, float* before, float* glyph, float* after)
{
    TracedCall call(m_Session.Output, HostOperation::GetGlyphMetrics);
    call.Id("font", font).Number(first).Number(last).ReturnsBool(false);
    if (m_Session.Refusals.Refuses(HostOperation::GetGlyphMetrics))
        return false;

    *before = 0;
    *glyph = static_cast<float>(m_Session.Drawing.GlyphWidth(static_cast<u8>(first)));
    *after = 0;
    call.Returns('(' + FloatText(*before) + ',' + FloatText(*glyph) + ',' + FloatText(*after) + ')');
    return true;
}

bool RecordingHost::GetDisplaySize(int& width, int& height)
{
    TracedCall call(m_Session.Output, HostOperation::GetDisplaySize);
    const auto& size = m_Session.Drawing.DisplaySize;
    call.ReturnsBool(false);
    if (m_Session.Refusals.Refuses(HostOperation::GetDisplaySize) || !size)
        return false;

    width = size->x;
    height = size->y;
    call.Returns(PointText(*size));
    return true;
}

u32 RecordingHost::LoadTextureResource(const char* path, u32 colorKey)
{
    TracedCall call(m_Session.Output, HostOperation::LoadTextureResource);
    call.Text(path).Argument(ColorText(colorKey));
    const auto size = m_Session.Files.TextureSize(path ? path : "");
    const bool fails = m_Session.Refusals.Refuses(HostOperation::LoadTextureResource) || !size;
    const u32 texture = fails ? 0 : m_Session.Drawing.AddTexture(*size);
    call.ReturnsId("texture", texture);
    return texture;
}

bool RecordingHost::GetTextureResourceSize(u32 texture, _Point2i& size)
{
    TracedCall call(m_Session.Output, HostOperation::GetTextureResourceSize);
    call.Id("texture", texture).ReturnsBool(false);
    const auto known = m_Session.Drawing.TextureSize(texture);
    if (m_Session.Refusals.Refuses(HostOperation::GetTextureResourceSize) || !known)
        return false;

    size = *known;
    call.Returns(PointText(size));
    return true;
}

void RecordingHost::ReleaseTextureResource(u32 texture)
{
    TracedCall(m_Session.Output, HostOperation::ReleaseTextureResource).Id("texture", texture);
    m_Session.Drawing.RemoveTexture(texture);
}
