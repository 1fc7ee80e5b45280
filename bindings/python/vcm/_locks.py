"""The locks that messages are added, listed and changed under."""

import threading

# Held while messages are added, and while keys are listed into an array that was measured before.
growing = threading.Lock()

# Held while messages are changed: the library reads a message, changes a field and writes all of it
# back, and one thread's change could undo another's.
changing = threading.RLock()
