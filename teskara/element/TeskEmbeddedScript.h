#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <memory>

class TeskElement;

// A script of an element, compiled by the host. The element's field holds one reference, and each run holds another, so
// that a script that deletes its element lives until it returns.
class TESKARA_EXPORT TeskEmbeddedScript
{
public:
    // Gives the atom back to the host.
    virtual ~TeskEmbeddedScript();

    // Drops one reference; the last one ends the object.
    virtual void Delete();

    // Runs the script with the given element as "this"; null: without one. Returns what the host returned, 0 if scripts
    // are nested too deep.
    virtual int Execute(TeskElement* element, int argc, char** argv);

    // Runs the script with its own element as "this".
    virtual int Execute(int argc, char** argv);

    // Compiles text as the body of an atom with that list of arguments, null for none. Null: nothing to compile, or the
    // host refused. The caller owns the one reference.
    static TeskEmbeddedScript* New(TeskElement* element, const char* text, const char* arguments);

    TeskEmbeddedScript(const TeskEmbeddedScript&) = delete;
    TeskEmbeddedScript& operator=(const TeskEmbeddedScript&) = delete;

    u32 Atom = 0;
    TeskElement* Element = nullptr;
    u32 ReferenceCount = 1;

protected:
    TeskEmbeddedScript() = default;

private:
    int Run(TeskElement* self, int argc, char** argv);
};

struct DropScriptReference {
    void operator()(TeskEmbeddedScript* script) const { script->Delete(); }
};

// One reference to a script, given up by its Delete.
using ScriptPointer = std::unique_ptr<TeskEmbeddedScript, DropScriptReference>;
