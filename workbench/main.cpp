#include "plugin/host/host_interface.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    return 0;
}
