// vantrel-input-helper: started by Vantrel through pkexec when the user may not read the input
// devices. It reads them as root and writes their key and button records to its standard output,
// Vantrel's pipe, until its standard input closes. It takes no argument and reads no environment:
// nothing a caller passes decides what it opens or where it writes.
#include "helper/InputForwarder.h"

#include <csignal>
#include <unistd.h>

int main(int argc, char *argv[])
{
    // A closed pipe is reported by write(), which ends the helper; no signal may kill it
    // half-way.
    std::signal(SIGPIPE, SIG_IGN);
#ifdef VANTREL_INPUT_HELPER_TESTING
    // The test build alone reads a folder of pipes named by its first argument.
    if (argc < 2)
        return 2;
    InputForwarder forwarder(argv[1], STDIN_FILENO, STDOUT_FILENO, true);
#else
    (void)argc;
    (void)argv;
    InputForwarder forwarder("/dev/input", STDIN_FILENO, STDOUT_FILENO, false);
#endif
    return forwarder.run();
}
