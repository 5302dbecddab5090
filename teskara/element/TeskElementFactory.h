#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"

#include <concepts>
#include <new>
#include <vector>

class TeskElement;
class XMLNode;

// Ends elements of one kind.
class TESKARA_EXPORT TeskElementDeleter
{
public:
    virtual ~TeskElementDeleter() = default;

    // Tells the element, takes it out of its parent's list and destroys it.
    virtual void Delete(TeskElement* element);
};

// An element class that searches under the mouse just as its base does.
template <class T>
concept SearchesAsTheBase =
    std::same_as<decltype(&T::FindMouseOver), TeskElement* (TeskElement::*)(_Point2i&, TeskElement*)>;

// Makes and ends the elements of one kind and knows those that live. A host adds a kind of its own with
//
//     TeskFactory<MyElement> factory("mykind");
//
// whose end, before the library's, deletes what is left of that kind.
class TESKARA_EXPORT TeskElementFactory
{
public:
    TeskElementFactory() = default;
    virtual ~TeskElementFactory();
    TeskElementFactory(const TeskElementFactory&) = delete;
    TeskElementFactory& operator=(const TeskElementFactory&) = delete;

    // Makes an element of that very class, for controls that need it as a part: a factory may have been replaced. The
    // part still ends by the factory of its kind. Null: it could not be made.
    template <class T> static T* New(const char* kind, TeskElement* parent, const char* name);

    // Makes an element under parent, which may be null. Null: it could not be made.
    virtual TeskElement* Create(TeskElement* parent, const char* name) = 0;

    // The same, and reads it from markup.
    virtual TeskElement* Create(TeskElement* parent, const char* name, XMLNode* node, const char* templateName) = 0;

    // An element has died.
    virtual void RemoveInstance(TeskElement* element);

    // Enters the factory under the name, in lower case. A version other than TeskaraVersion is refused with a line.
    void Register(const char* name, unsigned int version);

    // Takes it out again, if it still is the one of that name.
    void Unregister();

    // The kind word; null while the factory is not registered.
    const char* GetName() const { return m_Name ? m_Name->c_str() : nullptr; }
    TeskElementDeleter& Deleter() { return m_Deleter; }

protected:
    // Deletes all that live and unregisters. Called by the end of each concrete factory.
    void TearDown();

    // Whether an element may be made there now: not while the tree is torn down, too deep, or under a dying parent.
    static bool MayCreateUnder(TeskElement* parent);

    // The same, and not while the kind is torn down.
    bool MayCreate(TeskElement* parent) const { return !m_Ending && MayCreateUnder(parent); }

    // Enters a new element without markup; null stays null.
    TeskElement* Enter(TeskElement* element);

    // Reads a new element from its node and enters it, or removes it again and gives null.
    TeskElement* ReadAndEnter(TeskElement* element, XMLNode* node, const char* templateName);

private:
    void EndInstance(TeskElement& element);
    std::vector<u32> Instances() const;

    TeskElementDeleter m_Deleter;
    std::unique_ptr<utf8string> m_Name;
    bool m_Ending = false;
};

template <class T> T* TeskElementFactory::New(const char* kind, TeskElement* parent, const char* name)
{
    if (!MayCreateUnder(parent))
        return nullptr;

    try {
        T* element = new T(kind, parent, name);
        element->FoundInsideOnly = SearchesAsTheBase<T>;
        return element;
    } catch (...) {
        return nullptr;
    }
}

// The factory of one element class, which is made from (kind word, parent, name).
template <class T> class TeskFactory : public TeskElementFactory
{
public:
    explicit TeskFactory(const char* name, unsigned int version = TeskaraVersion) { Register(name, version); }
    ~TeskFactory() override { TearDown(); }

    TeskElement* Create(TeskElement* parent, const char* name) override { return Enter(Construct(parent, name)); }

    TeskElement* Create(TeskElement* parent, const char* name, XMLNode* node, const char* templateName) override
    {
        return ReadAndEnter(Construct(parent, name), node, templateName);
    }

private:
    TeskElement* Construct(TeskElement* parent, const char* name)
    {
        return MayCreate(parent) ? New<T>(GetName(), parent, name) : nullptr;
    }
};
