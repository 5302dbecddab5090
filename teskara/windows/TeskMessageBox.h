#pragma once

#include "teskara/element/TeskFont.h"
#include "teskara/windows/TeskWindow.h"

class DialogBuilder;
class TeskButton;
struct DialogButton;

// Which buttons a message box has.
enum eMessageBoxType : u32 {
    MessageBoxOK = 1,
    MessageBoxOKCancel = 2,
    MessageBoxYesNo = 3,
};

// A text with a button or two, in a window in the middle of the screen. Any of the buttons closes it.
class TESKARA_EXPORT TeskMessageBox : public TeskWindow
{
public:
    using TeskWindow::TeskWindow;

    // Always false: no markup makes a dialog.
    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    MvTypeDefinition* GetMvType() override;

    // Fills a box that was made without markup. Texts may be null; the title must outlive the call. A null template
    // means the one named "messagebox". May run scripts, which may end the box.
    void Create(const char* title, const char* text, eMessageBoxType type, XMLNode* templateNode);

    std::unique_ptr<TeskFont> Font;
    eMessageBoxType Type = MessageBoxOK;
    TeskButton* OKButton = nullptr; // null where there is none
    TeskButton* CancelButton = nullptr;
    TeskButton* YesButton = nullptr;
    TeskButton* NoButton = nullptr;

protected:
    // The text of a button of the box; null if it is none of them.
    const char* AnswerOf(const TeskElement* button) const;

private:
    struct Part;

    static std::span<const Part> Parts();
    void MakeText(const DialogBuilder& dialog);
    bool MakeButtons(const DialogBuilder& dialog);
    TeskButton* MakeButton(const DialogBuilder& dialog, const DialogButton& look, u32 x, u32 width);
    void ForgetButton(const TeskElement* button);
};
