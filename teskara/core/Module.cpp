// The one place that knows every kind. Objects are made in the order in which they stand here: the manager, then the
// factories, then the module's entry; they end in the reverse order.

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
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/platform/PlatformCalls.h"
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
#include "teskara/windows/TeskMessageBox.h"
#include "teskara/windows/TeskScriptInputBox.h"
#include "teskara/windows/TeskScriptMessageBox.h"
#include "teskara/windows/TeskWindow.h"
#include "teskara/windows/TeskWindowClient.h"
#include "teskara/windows/TeskWindowFactory.h"

CUIManager g_UIManager;

CUIManager* F1(HostObject* host)
{
    Host::g_Host = host;
    Host::g_ScriptHost = nullptr; // the old host's is not asked for the new one's
    Host::g_ScriptHost = Host::Call(
        static_cast<HostScriptInterface*>(nullptr), [](HostObject& object) { return object.GetScriptInterface(); });
    return &g_UIManager;
}

namespace {

TeskFactory<TeskButton> g_Button("button");
TeskFactory<TeskCheckBox> g_CheckBox("checkbox");
TeskFactory<TeskComboBox> g_ComboBox("combobox");
TeskFactory<TeskCommandButton> g_CommandButton("commandbutton");
TeskFactory<TeskCommandCheckBox> g_CommandCheckBox("commandcheckbox");
TeskFactory<TeskCommandEntry> g_CommandEntry("commandentry");
TeskFactory<TeskConsole> g_Console("console");
TeskFactory<TeskContextMenu> g_ContextMenu("contextmenu");
TeskFactory<TeskFrame> g_Frame("frame");
TeskFactory<TeskGauge> g_Gauge("gauge");
TeskFactory<TeskGaugeFiller> g_GaugeFiller("gaugefiller");
TeskFactory<TeskHudElement> g_HudElement("hudelement");
TeskFactory<TeskListBox> g_ListBox("listbox");
TeskFactory<TeskMapBlip> g_MapBlip("mapblip");
TeskFactory<TeskMapBlipView> g_MapBlipView("mapblipview");
TeskFactory<TeskMap> g_Map("map");
TeskFactory<TeskMapView> g_MapView("mapview");
TeskFactory<TeskMessageBox> g_MessageBox("messagebox");
TeskFactory<TeskScriptInputBox> g_ScriptInputBox("scriptinputbox");
TeskFactory<TeskScriptMessageBox> g_ScriptMessageBox("scriptmessagebox");
TeskFactory<TeskScrollBar> g_ScrollBar("scrollbar");
TeskFactory<TeskSlider> g_Slider("slider");
TeskFactory<TeskTabControl> g_TabControl("tabcontrol");
TeskFactory<TeskTableCell> g_TableCell("tablecell");
TeskFactory<TeskTable> g_Table("table");
TeskFactory<TeskText> g_Text("text");
TeskFactory<TeskTextEdit> g_TextEdit("textedit");
TeskFactory<TeskTextEntry> g_TextEntry("textentry");
TeskFactory<TeskTooltip> g_Tooltip("tooltip");
TeskFactory<TeskTree> g_Tree("tree");
TeskFactory<TeskVariableGauge> g_VariableGauge("variablegauge");
TeskFactory<TeskVariableSlider> g_VariableSlider("variableslider");
TeskFactory<TeskWindowClient> g_WindowClient("windowclient");
TeskWindowFactory<TeskWindow, pTeskWindowType> g_Window("window");

// Where the module lies, without its own name, and the log beside it, to which nothing is written.
char g_ModuleDirectory[512];
char g_LogPath[512];

// The module's entry and exit.
class Module
{
public:
    Module()
    {
        CopyBounded(g_ModuleDirectory, sizeof(g_ModuleDirectory), DirectoryOf(System::GetModulePath()));
        FormatBounded(g_LogPath, sizeof(g_LogPath), "%s\\Teskara.log", g_ModuleDirectory);
    }

    // By the time that the factories and the manager end, the host may be gone.
    ~Module()
    {
        g_UIManager.Shutdown();
        Host::g_Host = nullptr;
        Host::g_ScriptHost = nullptr;
    }

private:
    static utf8string DirectoryOf(const utf8string& path)
    {
        const std::size_t separator = path.rfind('\\');
        return separator == utf8string::npos ? "." : path.substr(0, separator);
    }
};

Module g_Module;

} // namespace
