#include "host/lint/LintRule.h"

namespace host {

namespace {

// clang-format off
constexpr LintRule Rules[] = {
    {"toggle-word",         "a toggle written as a word",                            false, LintChecks::Toggle},
    {"hex-value",           "a hexadecimal value that is none",                      false, LintChecks::Hex},
    {"number",              "a number that is none, or ends in something else",      false, LintChecks::Number},
    {"word",                "a word that the value does not know",                   false, LintChecks::Word},
    {"far-share",           "a share that is to count from the far edge",            false, LintChecks::FarShare},
    {"empty-value",         "a value element with nothing in it",                    false, LintChecks::EmptyValue},
    {"value-begin",         "a comment or a blank before a value",                   false, LintChecks::ValueBegin},
    {"value-end",           "a value that a comment or an element cuts off",         false, LintChecks::ValueEnd},
    {"unknown-kind",        "an element of a kind that does not exist",              false, LintChecks::UnknownKind},
    {"misplaced-kind",      "an element of a kind that markup cannot make there",    false, LintChecks::MisplacedKind},
    {"unknown-tag",         "a tag that nobody reads",                               false, LintChecks::UnknownTag},
    {"unknown-attribute",   "an attribute that nobody reads",                        false, LintChecks::UnknownAttribute},
    {"attribute-for-child", "a setting written as an attribute instead of a child",  false, LintChecks::AttributeForChild},
    {"child-for-attribute", "a setting written as a child instead of an attribute",  false, LintChecks::ChildForAttribute},
    {"no-name",             "an element, template or skin without a name",           false, LintChecks::NoName},
    {"same-name",           "two of the same name beside each other",                false, LintChecks::SameName},
    {"template-list",       "a list of templates without the last comma",            false, LintChecks::TemplateList},
    {"template-order",      "a template that is used before it stands",              false, LintChecks::TemplateOrder},
    {"template-cycle",      "templates that build upon each other",                  false, LintChecks::TemplateCycle},
    {"unknown-template",    "a template that does not exist",                        false, LintChecks::UnknownTemplate},
    {"skin-template",       "a skin that names a template which does not exist",     false, LintChecks::SkinTemplate},
    {"hidden-children",     "children that hide those of the template",              true,  LintChecks::HiddenChildren},
    {"texture-file",        "an image that is not there",                            false, LintChecks::TextureFile},
    {"font-color",          "a font without a colour",                               false, LintChecks::FontColor},
    {"long-text",           "a text that does not fit where it goes",                false, LintChecks::LongText},
    {"entry-length",        "an entry without room for a text",                      false, LintChecks::EntryLength},
    {"tree-row-height",     "a tree whose rows have no height",                      false, LintChecks::TreeRowHeight},
    {"combo-height",        "a combo box without room for its list",                 false, LintChecks::ComboHeight},
    {"fade-delay",          "a fade that never begins",                              false, LintChecks::FadeDelay},
    {"tooltip-element",     "an automatic tooltip that no element shows",            true,  LintChecks::TooltipElement},
    {"script-error",        "a script that does not compile",                        false, LintChecks::ScriptError},
    {"sequence",            "a data sequence that is none",                          false, LintChecks::SequenceText},
    {"unknown-member",      "a member or method that the type does not have",        false, LintChecks::UnknownMember},
};
// clang-format on

} // namespace

const LintRule MarkupRule = {"markup", "a file that is no markup", false, nullptr};

std::span<const LintRule> LintRules()
{
    return Rules;
}

} // namespace host
