"""`python3 -m vcm`: the package's subcommands."""

import argparse
import importlib
import sys
from collections.abc import Sequence

# Each is a module with `add_arguments(parser)` and `run(arguments) -> int`, imported when it is
# asked for, since it may need what is not installed everywhere.
SUBCOMMANDS = {"plot": ("vcm.plot", "draws messages")}


def main(argv: Sequence[str] | None = None) -> int:
    """Runs one subcommand and returns its exit status."""
    argv = sys.argv[1:] if argv is None else argv
    chosen = next((word for word in argv if not word.startswith("-")), None)
    parser = argparse.ArgumentParser(prog="python3 -m vcm", description="Messages from Python.")
    subparsers = parser.add_subparsers(dest="subcommand", required=True)
    for name, (module, summary) in SUBCOMMANDS.items():
        subparser = subparsers.add_parser(name, help=summary, description=summary)
        if name == chosen:
            command = importlib.import_module(module)
            command.add_arguments(subparser)
            subparser.set_defaults(run=command.run)
    arguments = parser.parse_args(argv)
    return int(arguments.run(arguments))


if __name__ == "__main__":
    sys.exit(main())
