#include "platform/Prompts.h"

#include "platform/ConsolePrompts.h"

namespace qly::platform {

namespace {
Prompts *g_prompts = nullptr;
}

Prompts &prompts()
{
    static ConsolePrompts console;
    return g_prompts ? *g_prompts : console;
}

void setPrompts(Prompts *p)
{
    g_prompts = p;
}

QString programTitle()
{
    return QStringLiteral("Quillery");
}

Answer MsgBox(const QString &text, Buttons buttons, Icon icon, const QString &title)
{
    return prompts().message(title, text, buttons, icon);
}

} // namespace qly::platform
