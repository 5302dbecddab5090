#pragma once

#include "teskara/script/MvTypeDefinition.h"
#include "tests/fuzz/ChaosHost.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

// A chaotic host whose scripts keep values. As every host does it lets go of an element when it is told of its end; of
// other objects nothing is told, so that values of dead ones stay.
class ApiHost final : public ChaosHost
{
public:
    struct Command {
        const char* Name;
        CommandHandler Run;
    };

    std::vector<_MvTypeVar> Values;
    std::vector<MvTypeDefinition*> Types; // the toolkit's, in the order of their registration
    std::vector<TopLevelObjectHandler> Objects;
    std::vector<Command> Commands;

    // Keeps a value of one of the toolkit's types, in place of an old one if there are many.
    void Keep(const _MvTypeVar& value);

    bool IsToolkitType(const MvTypeDefinition* type) const;

    // Whether values of the type are elements.
    static bool IsElementType(const MvTypeDefinition* type);

    void AddCommand(const char* name, CommandHandler handler, int, int) override
    {
        Commands.push_back({name, handler});
    }
    void AddTopLevelObject(const char*, TopLevelObjectHandler handler) override { Objects.push_back(handler); }
    void AddType(MvTypeDefinition* type) override { Types.push_back(type); }
    MvTypeDefinition* FindType(const char* name) override;
    void InvalidateObject(u32, void* object) override { LetGo(object); }
    void InvalidateTransientObject(u32, void* object) override { LetGo(object); }

private:
    static constexpr std::size_t MostValues = 24;

    void LetGo(const void* object);

    std::map<std::string, std::unique_ptr<MvTypeDefinition>> m_OwnTypes;
    std::size_t m_NextKept = 0;
};
