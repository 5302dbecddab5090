#include "tests/unit/reentrancy/ForeignElements.h"

#include "teskara/collections/TeskComboBox.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/collections/TeskTabControl.h"
#include "teskara/collections/TeskTable.h"
#include "teskara/collections/TeskTableCell.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/controls/TeskButton.h"
#include "teskara/controls/TeskCheckBox.h"
#include "teskara/controls/TeskCommandButton.h"
#include "teskara/controls/TeskCommandCheckBox.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/controls/TeskGauge.h"
#include "teskara/controls/TeskGaugeFiller.h"
#include "teskara/controls/TeskHudElement.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/controls/TeskText.h"
#include "teskara/controls/TeskTooltip.h"
#include "teskara/controls/TeskVariableGauge.h"
#include "teskara/controls/TeskVariableSlider.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/TypeGlobals.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TeskConsole.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/windows/TeskContextMenu.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapBlip.h"
#include "teskara/windows/TeskMapBlipView.h"
#include "teskara/windows/TeskMapView.h"
#include "teskara/windows/TeskScriptInputBox.h"
#include "teskara/windows/TeskScriptMessageBox.h"
#include "teskara/windows/TeskWindow.h"
#include "teskara/windows/TeskWindowClient.h"
#include "teskara/windows/TeskWindowFactory.h"

#include <memory>

namespace {

// Those of the elements under test end first.
struct ForeignKinds {
    TeskFactory<Listening<TeskElement>> Listener{"listening"};
    TeskFactory<Listening<TeskGauge>> ListeningGauge{"listeninggauge"};
    TeskFactory<Listening<TeskMapView>> ListeningMapView{"listeningmapview"};

    TeskFactory<Foreign<TeskFrame>> Frame{"foreignframe"};
    TeskFactory<Foreign<TeskText>> Text{"foreigntext"};
    TeskFactory<Foreign<TeskButton>> Button{"foreignbutton"};
    TeskFactory<Foreign<TeskCheckBox>> CheckBox{"foreigncheckbox"};
    TeskFactory<Foreign<TeskCommandButton>> CommandButton{"foreigncommandbutton"};
    TeskFactory<Foreign<TeskCommandCheckBox>> CommandCheckBox{"foreigncommandcheckbox"};
    TeskFactory<Foreign<TeskHudElement>> HudElement{"foreignhudelement"};
    TeskFactory<Foreign<TeskGauge>> Gauge{"foreigngauge"};
    TeskFactory<Foreign<TeskGaugeFiller>> GaugeFiller{"foreigngaugefiller"};
    TeskFactory<Foreign<TeskVariableGauge>> VariableGauge{"foreignvariablegauge"};
    TeskFactory<Foreign<TeskSlider>> Slider{"foreignslider"};
    TeskFactory<Foreign<TeskVariableSlider>> VariableSlider{"foreignvariableslider"};
    TeskFactory<Foreign<TeskScrollBar>> ScrollBar{"foreignscrollbar"};
    TeskFactory<Foreign<TeskListBox>> ListBox{"foreignlistbox"};
    TeskFactory<Foreign<TeskComboBox>> ComboBox{"foreigncombobox"};
    TeskFactory<Foreign<TeskTree>> Tree{"foreigntree"};
    TeskFactory<Foreign<TeskTextEntry>> TextEntry{"foreigntextentry"};
    TeskFactory<Foreign<TeskCommandEntry>> CommandEntry{"foreigncommandentry"};
    TeskFactory<Foreign<TeskConsole>> Console{"foreignconsole"};
    TeskFactory<Foreign<TeskTextEdit>> TextEdit{"foreigntextedit"};
    TeskFactory<Foreign<TeskTabControl>> TabControl{"foreigntabcontrol"};
    TeskFactory<Foreign<TeskMap>> Map{"foreignmap"};
    TeskFactory<Foreign<TeskMapBlip>> MapBlip{"foreignmapblip"};
    TeskFactory<Foreign<TeskMapView>> MapView{"foreignmapview"};
    TeskFactory<Foreign<TeskMapBlipView>> MapBlipView{"foreignmapblipview"};
    TeskFactory<Foreign<TeskTooltip>> Tooltip{"foreigntooltip"};
    TeskWindowFactory<Foreign<TeskWindow>, pTeskWindowType> Window{"foreignwindow"};
    TeskFactory<Foreign<TeskWindowClient>> WindowClient{"foreignwindowclient"};
    TeskFactory<Foreign<TeskTable>> Table{"foreigntable"};
    TeskFactory<Foreign<TeskTableCell>> TableCell{"foreigntablecell"};
    TeskFactory<Foreign<TeskContextMenu>> ContextMenu{"foreigncontextmenu"};
    TeskFactory<Foreign<TeskMessageBox>> MessageBox{"foreignmessagebox"};
    TeskFactory<Foreign<TeskScriptMessageBox>> ScriptMessageBox{"foreignscriptmessagebox"};
    TeskFactory<Foreign<TeskScriptInputBox>> ScriptInputBox{"foreignscriptinputbox"};
    TeskFactory<ForeignElement> Element{"foreign"};
};

std::unique_ptr<ForeignKinds> g_Kinds;

} // namespace

void BeginForeignKinds()
{
    if (!g_Kinds)
        g_Kinds = std::make_unique<ForeignKinds>();
}

void EndForeignKinds()
{
    g_Kinds.reset();
}

// Runs its script and refuses all the same, so the press is offered a second time.
bool ForeignElement::OnLMouseDoubleClick(_Point2i& point)
{
    const ElementWatch self(*this);
    Foreign::OnLMouseDoubleClick(point);
    if (self.Exists())
        g_Bomb.Reach("refused double click");
    return false;
}

bool ForeignElement::OnKeyDown(unsigned int key)
{
    const ElementWatch self(*this);
    Foreign::OnKeyDown(key);
    if (self.Exists())
        g_Bomb.Reach("refused key");
    return false;
}
