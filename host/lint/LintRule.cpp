#include "host/lint/LintRule.h"

namespace host {

namespace {

// clang-format off
constexpr LintRule Rules[] = {
    {"toggle-word",         "a toggle written as a word",                            LintWhen::Always,  LintChecks::Toggle},
    {"hex-value",           "a hexadecimal value that is none",                      LintWhen::Always,  LintChecks::Hex},
    {"number",              "a number that is none, or ends in something else",      LintWhen::Always,  LintChecks::Number},
    {"word",                "a word that the value does not know",                   LintWhen::Always,  LintChecks::Word},
    {"far-share",           "a share that is to count from the far edge",            LintWhen::Always,  LintChecks::FarShare},
    {"empty-value",         "a value element with nothing in it",                    LintWhen::Always,  LintChecks::EmptyValue},
    {"value-begin",         "a comment or a blank before a value",                   LintWhen::Always,  LintChecks::ValueBegin},
    {"value-end",           "a value that a comment or an element cuts off",         LintWhen::Always,  LintChecks::ValueEnd},
    {"unknown-kind",        "an element of a kind that does not exist",              LintWhen::Always,  LintChecks::UnknownKind},
    {"misplaced-kind",      "an element of a kind that markup cannot make there",    LintWhen::Always,  LintChecks::MisplacedKind},
    {"unknown-tag",         "a tag that nobody reads",                               LintWhen::Always,  LintChecks::UnknownTag},
    {"unknown-attribute",   "an attribute that nobody reads",                        LintWhen::Always,  LintChecks::UnknownAttribute},
    {"attribute-for-child", "a setting written as an attribute instead of a child",  LintWhen::Always,  LintChecks::AttributeForChild},
    {"child-for-attribute", "a setting written as a child instead of an attribute",  LintWhen::Always,  LintChecks::ChildForAttribute},
    {"stray-text",          "a text that stands where nobody reads one",             LintWhen::Always,  LintChecks::StrayText},
    {"no-name",             "an element, template or skin without a name",           LintWhen::Always,  LintChecks::NoName},
    {"same-name",           "two of the same name beside each other",                LintWhen::Always,  LintChecks::SameName},
    {"template-list",       "a list of templates without the last comma",            LintWhen::Always,  LintChecks::TemplateList},
    {"template-order",      "a template that is used before it stands",              LintWhen::Always,  LintChecks::TemplateOrder},
    {"template-cycle",      "templates that build upon each other",                  LintWhen::Always,  LintChecks::TemplateCycle},
    {"unknown-template",    "a template that does not exist",                        LintWhen::Always,  LintChecks::UnknownTemplate},
    {"skin-template",       "a skin that names a template which does not exist",     LintWhen::Always,  LintChecks::SkinTemplate},
    {"hidden-children",     "children that hide those of the template",              LintWhen::Strict,  LintChecks::HiddenChildren},
    {"texture-file",        "an image that is not there",                            LintWhen::Always,  LintChecks::TextureFile},
    {"font-color",          "a font without a colour",                               LintWhen::Always,  LintChecks::FontColor},
    {"long-text",           "a text that does not fit where it goes",                LintWhen::Always,  LintChecks::LongText},
    {"entry-length",        "an entry without room for a text",                      LintWhen::Always,  LintChecks::EntryLength},
    {"tree-row-height",     "a tree whose rows have no height",                      LintWhen::Always,  LintChecks::TreeRowHeight},
    {"combo-height",        "a combo box without room for its list",                 LintWhen::Always,  LintChecks::ComboHeight},
    {"fade-delay",          "a fade that never begins",                              LintWhen::Always,  LintChecks::FadeDelay},
    {"tooltip-element",     "an automatic tooltip that no element shows",            LintWhen::Strict,  LintChecks::TooltipElement},
    {"script-error",        "a script that does not compile",                        LintWhen::Scripts, LintChecks::ScriptError},
    {"sequence",            "a data sequence that is none",                          LintWhen::Scripts, LintChecks::SequenceText},
    {"unknown-member",      "a member or method that the type does not have",        LintWhen::Scripts, LintChecks::UnknownMember},
};
// clang-format on

} // namespace

const LintRule MarkupRule = {"markup", "a file that is no markup", LintWhen::Always, nullptr};

std::span<const LintRule> LintRules()
{
    return Rules;
}

} // namespace host
