#pragma once

class MvTypeDefinition;

// The toolkit's script types, in the order in which they are made; null before Initialize and after Shutdown.
extern MvTypeDefinition* pTeskaraType;
extern MvTypeDefinition* pTeskElementType;
extern MvTypeDefinition* pTeskFrameType;
extern MvTypeDefinition* pTeskListBoxItemType;
extern MvTypeDefinition* pTeskListBoxType;
extern MvTypeDefinition* pTeskButtonType;
extern MvTypeDefinition* pTeskCheckBoxType;
extern MvTypeDefinition* pTeskComboBoxType;
extern MvTypeDefinition* pTeskConsoleType;
extern MvTypeDefinition* pTeskFontType;
extern MvTypeDefinition* pTeskGaugeType;
extern MvTypeDefinition* pTeskHudElementType;
extern MvTypeDefinition* pTeskMapBlipType;
extern MvTypeDefinition* pTeskMapType;
extern MvTypeDefinition* pTeskMessageBoxType;
extern MvTypeDefinition* pTeskScrollBarType;
extern MvTypeDefinition* pTeskSliderType;
extern MvTypeDefinition* pTeskTabType;
extern MvTypeDefinition* pTeskTabControlType;
extern MvTypeDefinition* pTeskTextType;
extern MvTypeDefinition* pTeskTextEditType;
extern MvTypeDefinition* pTeskTextEntryType;
extern MvTypeDefinition* pTeskTextureType;
extern MvTypeDefinition* pTeskTooltipType;
extern MvTypeDefinition* pTeskTreeNodeType;
extern MvTypeDefinition* pTeskTreeType;
extern MvTypeDefinition* pTeskWindowType;

// The host's own types; null where it has none.
extern MvTypeDefinition* pStringType;
extern MvTypeDefinition* pIntType;
extern MvTypeDefinition* pInt64Type;
extern MvTypeDefinition* pBoolType;
extern MvTypeDefinition* pFloatType;
extern MvTypeDefinition* pPoint3fType;
extern MvTypeDefinition* pFilePathType;
extern MvTypeDefinition* pUintType;
