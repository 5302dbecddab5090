#include "program/InterfaceOptions.h"

#include <CLI/CLI.hpp>

CLI::Option* InterfaceOptions::AddTo(CLI::App& command)
{
    CLI::Option* files = command.add_option("FILE", Files, "Interface files, loaded in this order")->required();
    command
        .add_option_function<std::string>(
            "--size",
            [this](const std::string& text) {
                if (!Size.Read(text))
                    throw CLI::ValidationError("--size", "'" + text + "' is no size such as 960x640");
            },
            "Size of the display (1200x675)")
        ->type_name("WxH");
    command.add_option("--scale", Scale, "Pixels that are shown for each of the interface (1)")
        ->check(CLI::Range(0.5f, 8.0f))
        ->type_name("N");
    command.add_option("--skin", Skin, "A skin: its name in interfaces/skins, or its folder")->type_name("NAME");
    command.add_flag("--trust", Trust, "Give scripts the whole standard library of Lua, with files and processes");
    return files;
}

CLI::Option* InterfaceOptions::AddRecord(CLI::App& command)
{
    return command.add_option("--record", Record, "Write every call between toolkit and host into a file, for replay")
        ->type_name("FILE");
}
