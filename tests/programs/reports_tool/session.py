"""One session at the screen, from the login to the exit: session.py PROGRAM PASSWORD

Writes the cells of the report's page. Ends with the program's own status, or with 1 and
what was missed on standard error.
"""
import pathlib
import signal
import subprocess
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "support"))
from person import Atspi, Desktop, Person, wait_for  # noqa: E402

LONGEST = 40  # seconds, for the whole session


def log_in(person, password):
    person.find("Tallix Reports Tool - Login")
    person.type("Username:", "Administrator")
    person.type("Password:", password)
    person.press("Login To Reports")


def hold_session(person, password):
    log_in(person, password)
    person.find("Tallix Reports Tool - Main")
    person.press("Preset Reports")
    person.choose("Available Reports", "All Calls")
    person.press("Run Report")
    person.find("Tallix Reports Tool - Report Output")
    print("|".join(person.cells()))
    person.press("Print Report")
    person.find("Print", Atspi.Role.DIALOG)
    person.press("Print")
    wait_for(lambda: not person.see("Print", Atspi.Role.DIALOG), "the print dialog to go")
    person.press("Close")
    person.press("Logout")
    log_in(person, password + "x")
    person.find("Your access details were incorrect!", Atspi.Role.LABEL)
    person.press("Exit Application")


def main(program, password):
    signal.signal(signal.SIGALRM, lambda *_: sys.exit(f"the session took more than {LONGEST} s"))
    signal.alarm(LONGEST)
    with Desktop():
        process = subprocess.Popen([program])
        person = Person()
        try:
            hold_session(person, password)
            return process.wait(timeout=10)
        except LookupError as missed:
            return f"{missed}; on the screen: {person.words()}"
        finally:
            process.kill()
            process.wait()


sys.exit(main(*sys.argv[1:]))
