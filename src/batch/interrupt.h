#pragma once

namespace kov {

/// Makes an interrupt from the keyboard (SIGINT) the Break button: from now on the first one only sets
/// the flag of interrupted(), a second one ends the program as usual. An interrupt that the program was
/// started to ignore stays ignored. A write to a closed pipe becomes
/// an error instead of a signal.
void install_signal_handlers();

/// True once SIGINT arrived.
bool interrupted();

}  // namespace kov
