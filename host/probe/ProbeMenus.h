#pragma once

#include "teskara/windows/CContextMenuHandler.h"

#include <map>
#include <memory>
#include <string>

class ProbeOutput;

// A context menu whose rows stand in a text, a line each; it says when it is filled and what is picked.
class ProbeMenu : public CContextMenuHandler
{
public:
    using Menus = std::map<std::string, std::unique_ptr<ProbeMenu>>;

    // others: the menus that rows may name. Both are borrowed.
    ProbeMenu(std::string name, std::string rows, const Menus& others, ProbeOutput& output)
        : m_Name(std::move(name)), m_Rows(std::move(rows)), m_Others(others), m_Output(output)
    {
    }

    void OnCreate(unsigned int id) override;
    void OnClick(unsigned int id) override;

private:
    void AddRow(const std::string& row);
    CContextMenuHandler& Find(const std::string& name) const;

    std::string m_Name;
    std::string m_Rows;
    const Menus& m_Others;
    ProbeOutput& m_Output;
};
