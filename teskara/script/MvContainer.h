#pragma once

#include "teskara/core/Types.h"
#include "teskara/script/MvIteratable.h"
#include "teskara/script/MvTypeVar.h"

class ContainerWatch;

// A container of typed values that scripts hold by its address. Its entries have positions, counted from 1; some may
// have none. When it goes, its iterators end, and the host hears of it so that scripts let go.
class TESKARA_EXPORT MvContainer : public MvIteratable
{
public:
    explicit MvContainer(const char* typeName);
    ~MvContainer() override;

    // How many entries there are.
    virtual u32 GetCount() = 0;

    // How many positions there are, those without an entry included.
    virtual u32 GetSize() = 0;

    // The entry at a position; what its value points at stays the container's. False: there is none, and the result is
    // not looked at.
    virtual bool GetEntry(u32 position, _MvTypeVar& result) = 0;

protected:
    // Tells all who know of the container that it is going. A destructor that calls out while it frees its entries
    // calls this first.
    void Retire();

private:
    friend class ContainerWatch;

    void EndWatches();

    ContainerWatch* m_Watches = nullptr;
    bool m_IsRetired = false;
};
