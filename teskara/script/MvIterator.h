#pragma once

#include "teskara/script/ContainerWatch.h"
#include "teskara/script/MvSym.h"
#include "teskara/script/MvTypeVar.h"

// How an iterator walks.
struct IteratorFlags {
    bool Forward = true; // from the first position on; else from the last one backwards
    bool Reversible = true; // whether it can also go the other way: without that Last and Previous give false
    bool ByValue = false; // for the script engine: a loop takes copies of the values; the walk is the same
};

// A walk over a container, which may change meanwhile and may go: then every operation gives false. A new iterator
// stands before the first entry.
class TESKARA_EXPORT MvIterator : public MvSym
{
public:
    // Makes itself known to the container.
    explicit MvIterator(MvContainer& container, const IteratorFlags& flags = {});
    ~MvIterator() override;

    // Null: it has gone.
    MvContainer* GetContainer() const { return m_Container.Get(); }
    const IteratorFlags& GetFlags() const { return m_Flags; }

    // False: there is no such entry, and the iterator stands outside of the container.
    virtual bool First() = 0;
    virtual bool Last() = 0;
    virtual bool Next() = 0;
    virtual bool Previous() = 0;

    // Whether it stands on an entry.
    virtual bool IsValid() = 0;

    // What the entry is called, and what it is. False: there is none, and the result is as it was.
    virtual bool GetKey(_MvTypeVar& result) = 0;
    virtual bool GetValue(_MvTypeVar& result) = 0;

private:
    ContainerWatch m_Container;
    IteratorFlags m_Flags;
};
