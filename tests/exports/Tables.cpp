// Makes the compiler lay out each virtual table that a host and the toolkit call each other through;
// tools/check_exports.py compares their order with tables.txt.

#include "teskara/core/CPortableLock.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostInterface.h"
#include "teskara/core/platform/Platform.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskEmbeddedScript.h"
#include "teskara/element/TeskFont.h"
#include "teskara/script/MvContainer.h"
#include "teskara/script/MvIterator.h"
#include "teskara/script/MvTypeDefinition.h"

// A table is only laid out with a destructor that is not inline.
template <class Table> struct Order : Table {
    ~Order();
};

template <class Table> Order<Table>::~Order() = default;

template struct Order<HostObject>;
template struct Order<HostScript>;
template struct Order<HostScriptInterface>;
template struct Order<Platform>;
template struct Order<CPortableLock>;
template struct Order<CUIManager>;
template struct Order<TeskElement>;
template struct Order<TeskElementFactory>;
template struct Order<TeskElementDeleter>;
template struct Order<TeskEmbeddedScript>;
template struct Order<TeskFont>;
template struct Order<MvTypeDefinition>;
template struct Order<MvContainer>;
template struct Order<MvIterator>;
