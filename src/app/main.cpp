#include "core/ui/Main.h"

int main(int argc, char **argv)
{
    return qly::core::ui::Main(argc, argv);
}
