#include "host/schema/SchemaNotes.h"

#include <algorithm>

namespace host {

namespace {

struct Note {
    std::string_view Shape; // empty: any that has the value
    std::string_view Value; // empty: the shape itself
    std::string_view Text;
};

// clang-format off
constexpr Note Notes[] = {
    {"element", "", "What every element has."},
    {"frame", "", "A panel: a background, a border and an image. Holds other elements."},
    {"text", "", "A text in one or several lines."},
    {"button", "", "A button with a text and an image for each of its states."},
    {"checkbox", "", "A box that a click checks and unchecks, with a text beside it."},
    {"commandbutton", "", "A button that runs a console command."},
    {"commandcheckbox", "", "A check box that runs console commands and follows a data sequence."},
    {"slider", "", "A handle on a track: a number that the user sets."},
    {"variableslider", "", "A slider that sets a variable of the host and follows it."},
    {"scrollbar", "", "A slider between two buttons."},
    {"gauge", "", "A bar that shows a value."},
    {"gaugefiller", "", "The part of a gauge that grows with the value."},
    {"variablegauge", "", "A gauge that follows a data sequence."},
    {"hudelement", "", "A line of text that follows its data sequences and can be dragged."},
    {"tooltip", "", "A panel of lines that shows up beside what it explains."},
    {"listbox", "", "Rows of text, of which the user selects some."},
    {"combobox", "", "One row of a list that drops down."},
    {"tree", "", "Rows of text that unfold into others."},
    {"tabcontrol", "", "Several pages, one of them in front, and a row of tabs to choose it."},
    {"table", "", "A grid of cells that share its space."},
    {"tablecell", "", "A cell of a table. Holds other elements."},
    {"textentry", "", "One line of text that the user types."},
    {"textedit", "", "Many lines of text that the user edits."},
    {"commandentry", "", "A text entry for commands, with their history and completion."},
    {"console", "", "Lines of output that scroll back."},
    {"window", "", "A frame with a title bar that can be moved, sized, shrunk and closed."},
    {"windowclient", "", "The inside of a window."},
    {"messagebox", "", "A box with a text and buttons."},
    {"scriptmessagebox", "", "A message box that a script waits for."},
    {"scriptinputbox", "", "A box that asks a script's user for a text."},
    {"contextmenu", "", "A menu that pops up."},
    {"map", "", "Shows blips at points of a world."},
    {"mapview", "", "Shows blips of a map once more."},
    {"mapblip", "", "A point of a map."},
    {"mapblipview", "", "A blip of a map in a view of it."},
    {"map area", "", "What maps and their views have in common."},
    {"dialog window", "", "What the window of a dialog takes from the dialog's template."},
    {"dialog", "", "What the templates of dialogs have in common."},
    {"interface", "", "An interface file: templates, skins and elements."},
    {"template element", "", "Values for all that name it. Bases come first; a list of several ends each name in a comma."},
    {"skin", "", "Puts templates in the place of others."},
    {"skin line", "", "One template that another takes the place of."},
    {"texture", "", "An image and which part of it is drawn how."},
    {"triangle", "", "The corners of a triangle in an image."},
    {"font", "", "A typeface, its size and its colour."},
    {"fixed font", "", "A font in which all characters are equally wide."},
    {"children", "", "The elements in an element. The element's own list hides that of its template."},
    {"items", "", "The rows of a list."},
    {"item", "", "One row; its text is what it shows."},
    {"tabs", "", "The tabs of a tab control."},
    {"tab", "", "One page and the elements on it."},
    {"row", "", "One row of cells."},

    {"", "name", "Unique among the siblings. An element without one is not made."},
    {"", "Template", "The template whose values stand in for those that are not here."},
    {"template element", "Template", "The bases: one name, or several that each end in a comma."},
    {"table", "Template", "The template of all cells that name none."},
    {"element", "X", "Pixels from the parent's left edge, from the right edge with r before them, or a share with % or a point."},
    {"element", "Y", "Pixels from the parent's top, from the bottom with r before them, or a share with % or a point."},
    {"element", "Width", "Pixels, the parent's width less some with r before them, or a share with % or a point."},
    {"element", "Height", "Pixels, the parent's height less some with r before them, or a share with % or a point."},
    {"element", "Alpha", "How solid it is, from 0 to 1; its children multiply by it."},
    {"element", "FadeAlpha", "How solid it is after it faded. Without it, as solid as before."},
    {"element", "FadeDelay", "Milliseconds without the mouse before it fades; 0 for never."},
    {"element", "FadeDuration", "Milliseconds that fading takes."},
    {"element", "StorePosition", "The host keeps the position from one run to the next."},
    {"element", "Strata", "The layer among the siblings; higher ones are drawn over lower ones."},
    {"element", "AlwaysOnTop", "Puts it into the topmost layer, whatever Strata says."},
    {"element", "Visible", "Whether it shows."},
    {"element", "AutoTooltip", "The text that the tooltip of the screen shows for it."},
    {"element", "Children", "The elements in it."},
    {"", "OnLoad", "It was loaded, and what is in it."},
    {"", "OnUnload", "It is about to go."},
    {"", "OnLeftClick", "The left button was let go over it."},
    {"", "OnRightClick", "The right button was let go over it."},
    {"", "OnLeftDown", "The left button was pressed over it."},
    {"", "OnRightDown", "The right button was pressed over it."},
    {"", "OnDoubleLeftClick", "It was clicked twice with the left button."},
    {"", "OnDoubleRightClick", "It was clicked twice with the right button."},
    {"", "OnMouseEnter", "The mouse came over it."},
    {"", "OnMouseExit", "The mouse left it."},
    {"", "OnMouseMove", "The mouse moved over it."},
    {"", "OnMouseWheel", "The wheel was turned over it."},
    {"", "OnKeyboardEnter", "It got the keyboard."},
    {"", "OnKeyboardExit", "It lost the keyboard."},
    {"", "OnKeyUp", "A key was let go."},
    {"", "OnKeyDown", "A key was pressed."},
    {"", "OnRender", "It is about to be drawn."},
    {"", "OnChange", "The value changed."},
    {"", "OnSelect", "Something in it was selected."},
    {"", "OnDeSelect", "Something in it is no longer selected."},
    {"", "OnCommand", "A line was entered."},
    {"", "OnSetTooltip", "The tooltip is about to show for it, and waits for its lines."},
    {"", "BackgroundColor", "Fills the rectangle; 0 for none."},
    {"", "BorderColor", "The colour of the border; 0 for none."},
    {"scriptinputbox", "BorderColor", "The colour of the border, as a decimal number."},
    {"", "Border", "How thick the border is; it also keeps the corners of an image from stretching."},
    {"texture", "Border", "How much of the image's edges does not stretch, in pixels of the image."},
    {"", "Texture", "The image."},
    {"", "TexturePressed", "The image while it is pressed."},
    {"", "TextureHover", "The image while the mouse is over it."},
    {"checkbox", "TextureChecked", "The image while it is checked."},
    {"checkbox", "TextureCheckedPressed", "The image while it is checked and pressed."},
    {"checkbox", "TextureCheckedHover", "The image while it is checked and the mouse is over it."},
    {"", "Font", "The font of its texts. Without one nothing may show."},
    {"", "Text", "What it shows."},
    {"text", "Wrap", "Breaks lines that are too long."},
    {"text", "Alignment", "Where lines lie between left and right."},
    {"text", "VerticalAlignment", "Where the text lies between top and bottom."},
    {"", "ColorMask", "Multiplies the colours of its images; 0 leaves them alone."},
    {"", "Console", "The console that commands go to; without it the host's own."},
    {"", "Command", "The command that a click runs."},
    {"commandcheckbox", "CommandChecked", "The command that a click runs while it is checked."},
    {"", "Data", "A data sequence whose value it follows."},
    {"variableslider", "Data", "The name of the variable that it sets and follows."},
    {"", "Offset", "Where the value starts."},
    {"variableslider", "VariableRange", "How far the variable goes from there."},
    {"", "Range", "The largest value."},
    {"", "Vertical", "Stands upright."},
    {"gauge", "TopTexture", "The image over the filler."},
    {"gauge", "Filler", "What grows with the value."},
    {"gaugefiller", "Repeat", "How many steps it grows in."},
    {"slider", "HandleTexture", "The image of the handle."},
    {"scrollbar", "Slider", "The slider between the buttons."},
    {"scrollbar", "UpButton", "The button before the slider."},
    {"scrollbar", "DownButton", "The button behind the slider."},
    {"hudelement", "Group", "A word by which hosts find those that belong together."},
    {"hudelement", "UpdateInterval", "How many frames the text stays before it is evaluated again."},
    {"", "ScrollBar", "The scroll bar, or the name of its template."},
    {"textedit", "VerticalScrollBar", "The scroll bar, or the name of its template."},
    {"", "SelectionColor", "The colour behind what is selected."},
    {"listbox", "SelectMultiple", "Several rows may be selected at once."},
    {"listbox", "Sort", "How rows are put in order."},
    {"", "Items", "The rows."},
    {"items", "item", "One row."},
    {"item", "Value", "What scripts know the row by."},
    {"item", "Color", "The colour of the text; 0 for that of the font."},
    {"item", "Default", "1 selects the row."},
    {"combobox", "FullHeight", "How high it is with the list dropped down."},
    {"combobox", "ButtonWidth", "How wide its button is."},
    {"combobox", "ButtonTexture", "The image of its button."},
    {"combobox", "ListBox", "The list. A combo box without one is not made."},
    {"tabcontrol", "Draggable", "Tabs can be dragged to other places."},
    {"tabcontrol", "SelectedTextColor", "The colour of the selected tab's name."},
    {"tabcontrol", "TabHeight", "How high the tabs are."},
    {"tabcontrol", "TabBorder", "The border of the tabs' images."},
    {"tabcontrol", "TabTexture", "The image of a tab."},
    {"tabcontrol", "TabSelectedTexture", "The image of the selected tab."},
    {"tabcontrol", "FrameTexture", "The image of the pages."},
    {"tabcontrol", "FrameBackgroundColor", "Fills the pages."},
    {"tabcontrol", "FrameBorder", "The border of the pages."},
    {"tabcontrol", "FrameBorderColor", "The colour of that border."},
    {"tabcontrol", "LeftButton", "Scrolls the tabs to the left."},
    {"tabcontrol", "RightButton", "Scrolls the tabs to the right."},
    {"tabcontrol", "LeftTexture", "The image of the left button, if that has no markup of its own."},
    {"tabcontrol", "LeftPressedTexture", "The same while it is pressed."},
    {"tabcontrol", "LeftHoverTexture", "The same while the mouse is over it."},
    {"tabcontrol", "RightTexture", "The image of the right button, if that has no markup of its own."},
    {"tabcontrol", "RightPressedTexture", "The same while it is pressed."},
    {"tabcontrol", "RightHoverTexture", "The same while the mouse is over it."},
    {"tabcontrol", "Tabs", "The pages."},
    {"tabs", "Tab", "One page."},
    {"tab", "Name", "What the tab says, and the name of its page."},
    {"table", "Row", "One row."},
    {"row", "Cell", "One cell."},
    {"tablecell", "RowSpan", "How many rows it reaches over."},
    {"tablecell", "ColSpan", "How many columns it reaches over."},
    {"tree", "IndentPerDepth", "How far rows move to the right with each level."},
    {"tree", "ImageSize", "The side of the images before the rows."},
    {"tree", "ImageBorder", "The room around those images."},
    {"tree", "TextMargin", "The room before the text."},
    {"tree", "ItemHeight", "How high rows are. Without it none show."},
    {"tree", "SelectionBackgroundColor", "The colour behind the selected row."},
    {"tree", "SelectionTextColor", "The colour of the selected row's text."},
    {"tree", "ImageTexture", "The image before rows that hold none."},
    {"tree", "ImageTextureCollapsible", "The image before rows that are open."},
    {"tree", "ImageTextureCollapsed", "The image before rows that are shut."},
    {"textentry", "MaxLength", "How many bytes the text may have. Without it, one."},
    {"textentry", "PasswordCharacter", "Shown in the place of each character."},
    {"textentry", "TextureFocused", "The image while it has the keyboard."},
    {"", "CaretOuterColor", "The colour of the caret's edge."},
    {"", "CaretInnerColor", "The colour of the caret."},
    {"textedit", "CaretTexture", "The image of the caret."},
    {"textedit", "CaretOverwriteTexture", "The image of the caret while typing overwrites."},
    {"commandentry", "CommandHistory", "How many commands are kept."},
    {"console", "ScrollbackColor", "Fills the rectangle while it is scrolled back."},
    {"console", "ScrollbackTexture", "The image while it is scrolled back."},
    {"console", "BackBufferSize", "How many lines are kept, at least 100."},
    {"", "CloseButton", "Keeps the title bar's button Close."},
    {"", "MinimizeButton", "Keeps the title bar's buttons Minimize and Maximize."},
    {"", "Resizable", "The user may drag the edges."},
    {"", "WidthResizable", "The user may drag the edges at the sides."},
    {"", "HeightResizable", "The user may drag the edges at top and bottom."},
    {"window", "MinWidth", "The least width."},
    {"window", "MinHeight", "The least height."},
    {"window", "Locked", "The user cannot move it."},
    {"", "Title", "What the title bar says, never that of a template. Without it, the name."},
    {"", "ClickFocus", "The element that gets the keyboard when the window is clicked."},
    {"", "TitleBar", "The title bar. Its children Title, Minimize, Maximize and Close are known by these names."},
    {"", "Client", "The inside, which holds what is loaded into the window."},
    {"dialog window", "OffsetTitleBarHeight", "Adds the title bar's height to that of the window."},
    {"dialog window", "OffsetTitleBarWidth", "Adds the title bar's width to that of the window."},
    {"map area", "ClipZ", "Hides blips above and below a range."},
    {"map area", "ClipRadius", "The map is a circle."},
    {"map area", "ShowLabels", "Blips show their labels."},
    {"map area", "Rotation", "The map turns."},
    {"map area", "MapSizeX", "How much of the world the width shows."},
    {"map area", "MapSizeY", "How much of the world the height shows."},
    {"map", "BlipFactory", "The kind of its blips, if not mapblip."},
    {"map", "BlipTemplate", "The template of blips that name none."},
    {"contextmenu", "HighlightColor", "The colour of the text under the mouse."},
    {"contextmenu", "ItemTexture", "The image of a row."},
    {"contextmenu", "ItemCheckTexture", "The image of a row that is checked."},
    {"contextmenu", "HighlightItemTexture", "The image of the row under the mouse."},
    {"contextmenu", "SeparatorTexture", "The image of a line between rows."},
    {"contextmenu", "SubmenuTexture", "The image of a row that opens another menu."},
    {"contextmenu", "HighlightSubmenuTexture", "The image of such a row under the mouse."},
    {"interface", "Skin", "Puts templates in the place of others."},
    {"interface", "Template", "Values for all that name it."},
    {"skin", "SkinTemplate", "One of its lines."},
    {"skin line", "Base", "The template whose place is taken."},
    {"skin line", "Skin", "The template that takes it."},
    {"skin line", "SkinPrefix", "Put before the base's name, the name of the template that takes its place."},
    {"texture", "Filename", "The image; a name that begins with # is the host's own, and #fill a plain surface."},
    {"texture", "left", "The left edge of the part that is drawn."},
    {"texture", "right", "The right edge of the part that is drawn."},
    {"texture", "bottom", "The bottom of the part that is drawn."},
    {"texture", "top", "The top of the part that is drawn."},
    {"texture", "Triangle", "Draws a triangle of the image."},
    {"texture", "Orientation", "Quarter turns clockwise, from 0 to 3."},
    {"texture", "Alpha", "How solid it is, from 0 to 1."},
    {"texture", "ColorKey", "The colour that is transparent."},
    {"font", "Name", "The typeface."},
    {"font", "Bold", "In bold type."},
    {"font", "Fixed", "All characters equally wide."},
    {"font", "Size", "Pixels from line to line."},
    {"font", "Color", "The colour; 0 shows nothing."},
};
// clang-format on

std::string_view Find(std::string_view shape, std::string_view value)
{
    for (const Note& note : Notes) {
        if (note.Shape == shape && note.Value == value)
            return note.Text;
    }
    return {};
}

bool IsTold(const Schema& schema, const Note& note)
{
    const auto hasValue = [&note](const SchemaShape& shape) {
        return std::any_of(shape.Values.begin(), shape.Values.end(),
            [&note](const SchemaValue& value) { return value.Name == note.Value; });
    };
    if (note.Shape.empty())
        return std::any_of(schema.Shapes.begin(), schema.Shapes.end(), hasValue);

    const SchemaShape* shape = schema.FindShape(note.Shape);
    return shape && (note.Value.empty() || hasValue(*shape));
}

} // namespace

std::string_view NoteOn(const SchemaShape& shape)
{
    return Find(shape.Name, "");
}

std::string_view NoteOn(const SchemaShape& shape, const SchemaValue& value)
{
    const std::string_view own = Find(shape.Name, value.Name);
    return own.empty() ? Find("", value.Name) : own;
}

std::string FirstStrayNote(const Schema& schema)
{
    for (const Note& note : Notes) {
        if (!IsTold(schema, note))
            return std::string(note.Shape) + " " + std::string(note.Value);
    }
    return {};
}

} // namespace host
