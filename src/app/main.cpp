#include "app/Main.h"

int main(int argc, char **argv)
{
    return qly::app::Main(argc, argv);
}
