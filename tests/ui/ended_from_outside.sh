#!/bin/bash
# Signals end the program while it does one thing or another; it loses its display, or
# meets a fault of its own: what it was to keep is kept, and the next start goes on from there.
exec python3 -B "$(dirname "$0")/ended_from_outside.py"
