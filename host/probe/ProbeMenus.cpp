#include "host/probe/ProbeMenus.h"

#include "host/probe/CommandCall.h"
#include "host/probe/ProbeOutput.h"
#include "host/probe/ValueText.h"

#include <sstream>

void ProbeMenu::OnCreate(unsigned int id)
{
    m_Output.Line(m_Name + " create " + std::to_string(id));
    std::istringstream rows(m_Rows);
    for (std::string row; std::getline(rows, row);) {
        try {
            AddRow(row);
        } catch (const CommandError& error) {
            m_Output.Error(error.what());
        }
    }
}

void ProbeMenu::OnClick(unsigned int id)
{
    m_Output.Line(m_Name + " click " + std::to_string(id));
}

void ProbeMenu::AddRow(const std::string& row)
{
    const CommandCall call({row, {}}, CommandForm::Words, {});
    if (call.Name() == "item")
        AddItem(call.Text(0).c_str(), call.Has(1) ? call.Unsigned(1) : 0);
    else if (call.Name() == "submenu")
        AddSubMenu(call.Text(0).c_str(), &Find(call.Text(1)), call.Has(2) ? call.Unsigned(2) : 0);
    else if (call.Name() == "separator")
        AddSeparator();
    else if (!call.Name().empty())
        throw CommandError("no row " + Quoted(call.Name()));
}

CContextMenuHandler& ProbeMenu::Find(const std::string& name) const
{
    const auto found = m_Others.find(name);
    if (found == m_Others.end())
        throw CommandError("no menu " + Quoted(name));
    return *found->second;
}
