#pragma once

#include "teskara/core/Types.h"

#include <span>
#include <string_view>

namespace host {

class LintContext;

// When a rule looks.
enum class LintWhen : u8 {
    Always,
    Strict, // on demand: what it finds may well be meant
    Scripts, // unless scripts and data sequences are of another language than the reference host's
};

// One thing that is looked for. Its page is docs/lint/NAME.md.
struct LintRule {
    std::string_view Name;
    std::string_view Text; // what it finds, in a line
    LintWhen When;
    void (*Check)(LintContext& context);
};

// The rule of files that are no markup: the others do not look at them.
extern const LintRule MarkupRule;

// All others, in the order in which they look.
std::span<const LintRule> LintRules();

// The groups of rules, each in a file of its own.
namespace LintChecks {

// Values
void Toggle(LintContext& context);
void Hex(LintContext& context);
void Number(LintContext& context);
void Word(LintContext& context);
void FarShare(LintContext& context);
void EmptyValue(LintContext& context);
void ValueBegin(LintContext& context);
void ValueEnd(LintContext& context);

// Tags
void UnknownKind(LintContext& context);
void MisplacedKind(LintContext& context);
void UnknownTag(LintContext& context);
void UnknownAttribute(LintContext& context);
void AttributeForChild(LintContext& context);
void ChildForAttribute(LintContext& context);
void StrayText(LintContext& context);
void NoName(LintContext& context);
void SameName(LintContext& context);

// Templates
void TemplateList(LintContext& context);
void TemplateOrder(LintContext& context);
void TemplateCycle(LintContext& context);
void UnknownTemplate(LintContext& context);
void SkinTemplate(LintContext& context);
void HiddenChildren(LintContext& context);

// Resources
void TextureFile(LintContext& context);
void FontColor(LintContext& context);
void LongText(LintContext& context);

// Controls
void EntryLength(LintContext& context);
void TreeRowHeight(LintContext& context);
void ComboHeight(LintContext& context);
void FadeDelay(LintContext& context);
void TooltipElement(LintContext& context);

// Scripts
void ScriptError(LintContext& context);
void SequenceText(LintContext& context);
void UnknownMember(LintContext& context);

} // namespace LintChecks

} // namespace host
