// Templates and skins: stored as markup and as nodes, found, removed, read while they are removed, inherited along
// chains and lists, skins made, removed and put in force for a while. A plain model must tell the same all along.

#include "teskara/core/CUIManager.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/markup/SkinScope.h"
#include "teskara/markup/TeskSkin.h"
#include "teskara/markup/XMLDocument.h"
#include "tests/fuzz/MarkupMaker.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TemplateModel.h"

#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

// Longer chains are not begun, but for a last one that may go round in circles up to the toolkit's own end.
constexpr std::size_t MostEntries = 200;
constexpr std::size_t Circles = 255; // the choice to begin one
constexpr std::size_t MostSteps = 40;

// A template that lists others holds itself twice when it is stored anew, so that a few steps more would reach what the
// toolkit lets the bases of one hold together.
constexpr std::size_t MostNodes = 500;

constexpr const char* Names[] = {"a", "A", "b", "C", "button", "darkA", "darkb", "none", ""};
constexpr const char* Tags[] = {"Width", "WIDTH", "Font", "Children", "SkinTemplate", "skintemplate"};
constexpr const char* Bases[] = {"a", "b", "c", "button", "a,", "b,c,", "a,b", ",", "none", "none,a,", ""};

bool IsTemplate(const MarkupTree& node)
{
    return node.Type == XMLElementNode && TemplateModel::Folded(node.Name) == "template";
}

class Session
{
public:
    explicit Session(Choices& choices) : m_Choices(choices) { }

    ~Session()
    {
        while (!m_Scopes.empty())
            m_Scopes.pop_back();
        m_Held.clear();
        m_Reading.reset();
        g_UIManager.ClearTemplates();
        for (const auto& entry : m_Model.Skins)
            g_UIManager.RemoveSkin(entry.first.c_str());
        g_UIManager.CurrentSkin = nullptr;
    }

    void Run()
    {
        for (std::size_t step = 0; step < MostSteps && !m_Choices.AreUsedUp() && !m_IsOver; ++step)
            Step();
        CheckAll();
    }

private:
    struct Scope {
        std::unique_ptr<SkinScope> Real;
        std::weak_ptr<TemplateModel::Skin> Former;
        bool HadFormer;
    };

    // A template that is being read, and what it says.
    struct Held {
        XMLNode* Node;
        TemplateModel::Tree Plain;
    };

    std::string Name() { return Names[m_Choices.Below(std::size(Names))]; }

    void Step()
    {
        switch (m_Choices.Below(16)) {
        case 0:
        case 1:
            StoreMarkup(Name());
            break;
        case 2:
        case 3:
        case 4:
            StoreNode(Name());
            break;
        case 5:
            StoreStored(Name(), Name());
            break;
        case 6:
            Remove(Name());
            break;
        case 7:
            Find(Name());
            break;
        case 8:
            Clear();
            break;
        case 9:
            MakeSkin(Name());
            break;
        case 10:
            RemoveSkin(Name());
            break;
        case 11:
            ChangeSkin(Name(), Name(), Name());
            break;
        case 12:
            FillSkin(Name());
            break;
        case 13:
            PutInForce(Name());
            break;
        case 14:
            EnterOrLeave(Name());
            break;
        default:
            ReadOrEnd(Name());
        }
    }

    // Under a root: mostly one template, sometimes something else.
    MarkupTree MakeRoot()
    {
        MarkupTree root;
        root.Type = XMLRootNode;
        const std::size_t choice = m_Choices.Below(16);
        if (choice == 15)
            root.Add(XMLCommentNode, "none");
        MarkupTree* const top = root.Add(XMLElementNode,
            choice == 14          ? "Skin"
                : choice % 2 == 0 ? "Template"
                                  : "TEMPLATE");
        if (choice == 13)
            root.Add(XMLElementNode, "Template");
        if (m_Choices.Below(2) != 0)
            top->SetAttribute(choice % 2 == 0 ? "Template" : "template", Bases[m_Choices.Below(std::size(Bases))]);
        for (std::size_t count = m_Choices.Below(5); count > 0; --count)
            AddSomething(*top);
        return root;
    }

    void AddSomething(MarkupTree& node)
    {
        const std::size_t choice = m_Choices.Below(8);
        const std::string name = Name();
        if (choice == 0) {
            node.SetAttribute(Tags[m_Choices.Below(std::size(Tags))], name);
        } else if (choice == 1) {
            if (node.Children.empty() || node.Children.back()->Type != XMLTextNode)
                node.Add(XMLTextNode, "text " + name);
        } else if (choice == 2) {
            node.Add(XMLCommentNode, "comment " + name);
        } else {
            MarkupTree* const child = node.Add(XMLElementNode, Tags[m_Choices.Below(std::size(Tags))]);
            child->SetAttribute("Base", name);
            if (choice < 6)
                child->SetAttribute(choice == 5 ? "SkinPrefix" : "Skin", choice == 5 ? "dark" : Name());
        }
    }

    static std::string Markup(const MarkupTree& root)
    {
        Choices none(nullptr, 0);
        return MarkupMaker(none).Write(root);
    }

    void StoreMarkup(const std::string& name)
    {
        const MarkupTree root = MakeRoot();
        const XMLNode* const stored = g_UIManager.AddTemplate(name.c_str(), Markup(root).c_str());
        const bool isRight = !name.empty() && root.Children.size() == 1 && IsTemplate(*root.Children[0]);
        Require(isRight == (stored != nullptr), "markup is stored wrongly");
        if (!isRight)
            return;
        Require(root.Children[0]->IsSame(stored), "markup is stored as something else");
        m_Model.Store(name, root.Children[0]->Copy());
    }

    void StoreNode(const std::string& name)
    {
        const MarkupTree root = MakeRoot();
        const std::string text = Markup(root);
        XMLDocument document;
        Require(document.ParseBuffer(text.c_str(), text.size()), "right markup is refused");
        Store(name, *root.Children[0], document.Root->FirstChild);
    }

    // What is stored under one name is stored, or stored once more.
    void StoreStored(const std::string& name, const std::string& from)
    {
        const auto entry = m_Model.Templates.find(TemplateModel::Folded(from));
        if (entry != m_Model.Templates.end())
            Store(name, *entry->second, g_UIManager.Templates.find(std::string_view(from))->second.get());
    }

    void Store(const std::string& name, const MarkupTree& plain, XMLNode* node)
    {
        const bool isRight = !name.empty() && IsTemplate(plain);
        if (!isRight) {
            Require(!g_UIManager.AddTemplate(name.c_str(), node), "no template is stored");
            return;
        }
        std::optional<TemplateModel::Tree> merged = m_Model.Merge(name, plain, MostEntries);
        if (merged ? (*merged)->CountNodes() > MostNodes : m_Choices.Next() != Circles)
            return;
        const XMLNode* const stored = g_UIManager.AddTemplate(name.c_str(), node);
        Require(stored != nullptr, "a template is not stored");
        if (!merged) {
            m_IsOver = true;
            return;
        }
        Require((*merged)->IsSame(stored), "the merged template differs");
        m_Model.Store(name, std::move(*merged));
    }

    void Remove(const std::string& name)
    {
        g_UIManager.RemoveTemplate(name.c_str());
        m_Model.Remove(name);
        CheckHeld();
    }

    void Clear()
    {
        g_UIManager.ClearTemplates();
        m_Model.Templates.clear();
        CheckHeld();
    }

    void Find(const std::string& name)
    {
        const XMLNode* const node = g_UIManager.FindTemplate(name.c_str());
        const MarkupTree* const plain = m_Model.Find(name);
        Require(plain ? plain->IsSame(node) : !node, "another template is found");
    }

    void MakeSkin(const std::string& name)
    {
        Require((g_UIManager.NewSkin(name.c_str()) != nullptr) == !name.empty(), "a skin is made wrongly");
        m_Model.NewSkin(name);
        CheckCurrent();
    }

    void RemoveSkin(const std::string& name)
    {
        g_UIManager.RemoveSkin(name.c_str());
        m_Model.RemoveSkin(name);
        CheckCurrent();
    }

    void ChangeSkin(const std::string& name, const std::string& base, const std::string& skinned)
    {
        TeskSkin* const skin = g_UIManager.FindSkin(name.c_str());
        const TemplateModel::SkinPointer plain = m_Model.FindSkin(name);
        Require((skin != nullptr) == (plain != nullptr), "another skin is found");
        if (!skin)
            return;
        if (m_Choices.Below(2) == 0) {
            skin->AddTemplate(base.c_str(), skinned.c_str());
            TemplateModel::AddLine(*plain, base, skinned);
        } else {
            skin->RemoveTemplate(base.c_str());
            plain->erase(TemplateModel::Folded(base));
        }
        CheckSkin(*skin, *plain);
    }

    void FillSkin(const std::string& name)
    {
        TeskSkin* const skin = g_UIManager.FindSkin(name.c_str());
        const TemplateModel::SkinPointer plain = m_Model.FindSkin(name);
        const MarkupTree root = MakeRoot();
        XMLDocument document;
        Require(document.ParseBuffer(Markup(root).c_str()), "right markup is refused");
        if (!skin)
            return;
        XMLNode* const base = g_UIManager.FindTemplate(name.c_str());
        Require(skin->FromXML(document.Root->FirstChild, base), "a skin is not read");
        if (base)
            TemplateModel::AddLines(*plain, *m_Model.Find(name));
        TemplateModel::AddLines(*plain, *root.Children[0]);
        CheckSkin(*skin, *plain);
    }

    void PutInForce(const std::string& name)
    {
        g_UIManager.CurrentSkin = g_UIManager.FindSkin(name.c_str());
        m_Model.Current = m_Model.FindSkin(name);
    }

    void EnterOrLeave(const std::string& name)
    {
        if (m_Choices.Below(2) == 0) {
            m_Scopes.push_back({std::make_unique<SkinScope>(g_UIManager.FindSkin(name.c_str())), m_Model.Current,
                m_Model.Current != nullptr});
            if (TemplateModel::SkinPointer skin = m_Model.FindSkin(name))
                m_Model.Current = skin;
        } else if (!m_Scopes.empty()) {
            m_Model.Current = m_Scopes.back().HadFormer ? m_Scopes.back().Former.lock() : nullptr;
            m_Scopes.pop_back();
        }
        CheckCurrent();
    }

    void ReadOrEnd(const std::string& name)
    {
        if (m_Choices.Below(4) == 0) {
            m_Held.clear();
            m_Reading.reset();
            return;
        }
        if (!m_Reading)
            m_Reading = std::make_unique<MarkupReading>();
        if (const MarkupTree* const plain = m_Model.Find(name))
            m_Held.push_back({g_UIManager.FindTemplate(name.c_str()), plain->Copy()});
    }

    void CheckHeld() const
    {
        for (const Held& held : m_Held)
            Require(held.Plain->IsSame(held.Node), "a template that is read has changed");
    }

    void CheckCurrent() const
    {
        const TeskSkin* const skin = g_UIManager.CurrentSkin;
        Require((skin != nullptr) == (m_Model.Current != nullptr), "another skin is in force");
        if (skin)
            CheckSkin(*skin, *m_Model.Current);
    }

    static void CheckSkin(const TeskSkin& skin, const TemplateModel::Skin& plain)
    {
        Require(skin.Templates.size() == plain.size(), "a skin has other lines");
        for (const auto& [base, skinned] : plain) {
            const char* const found = skin.FindTemplate(base.c_str());
            Require(found && found == skinned, "a skin leads elsewhere");
        }
    }

    void CheckAll() const
    {
        CheckHeld();
        CheckCurrent();
        Require(m_IsOver || g_UIManager.Templates.size() == m_Model.Templates.size(), "there are other templates");
        Require(g_UIManager.Skins.size() == m_Model.Skins.size(), "there are other skins");
        for (const auto& [name, plain] : m_Model.Templates) {
            const auto entry = g_UIManager.Templates.find(std::string_view(name));
            Require(m_IsOver || (entry != g_UIManager.Templates.end() && plain->IsSame(entry->second.get())),
                "a template differs");
        }
    }

    Choices& m_Choices;
    TemplateModel m_Model;
    std::unique_ptr<MarkupReading> m_Reading;
    std::vector<Held> m_Held;
    std::vector<Scope> m_Scopes;
    bool m_IsOver = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    Choices choices(data, size);
    Session(choices).Run();
    return 0;
}
