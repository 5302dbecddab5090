#pragma once

#include "teskara/core/Export.h"

class MvContainer;

// Tells whether a container still exists. The container knows all its watches, and ends them when it goes.
class TESKARA_EXPORT ContainerWatch
{
public:
    explicit ContainerWatch(MvContainer& container);
    ~ContainerWatch();
    ContainerWatch(const ContainerWatch&) = delete;
    ContainerWatch& operator=(const ContainerWatch&) = delete;

    bool Exists() const { return m_Container; }

    // Null: it has gone.
    MvContainer* Get() const { return m_Container; }

private:
    friend class MvContainer;

    MvContainer* m_Container;
    ContainerWatch* m_Previous = nullptr; // among those of the container
    ContainerWatch* m_Next;
};
