#include "app/VantrelApp.h"

int main(int argc, char *argv[])
{
    return VantrelApp::main(argc, argv);
}
