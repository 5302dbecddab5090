#pragma once

class TeskElement;
class TeskFont;
class TeskTexture;

// The texture and the font that an element draws with, whatever its class. Null if it has none.
TeskTexture* TextureOf(TeskElement& element);
TeskFont* FontOf(TeskElement& element);
