"""Walks through the windows and takes their pictures: screenshots.py WALK PICTURES PROGRAM...

WALK is first_run, for a program without settings, session, for one that is set up, or the
name of a window that another program shows by itself.
"""
import os
import pathlib
import subprocess
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "tests" / "support"))
from person import Atspi, Desktop, Person, wait_for  # noqa: E402

STEP_MS = "400"
SETTLE = 0.4  # seconds, for a window to be drawn when its words are there


CUSTODY = {"Archive": "Archive Data", "Backup/Restore": "Backup/Restore"}
PAGES = ["Sites", "Extensions", "Extension Groups", "Address Book", "User Groups", "User Accounts", "Serial Port",
         "Network", "Report Design", "Folders", "System Settings", "Language and Currency", "Email", "Tools"]
# The page, its button, the picture, and the button by which the window is left.
FROM_OPTIONS = [("Sites", "Configure Sites", "sites", "Exit Without Saving"),
                ("Tools", "Scheduled Reports", "scheduled_reports", "Exit Schedule Screen"),
                ("Tools", "Edit Call Costings", "call_costings", "Exit Costings Screen"),
                ("Tools", "Access Logging", "access_logging", "Exit Logging Screen")]


class Camera:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def take(self, name, settle=SETTLE):
        """The screen without the black around the window that is on it."""
        time.sleep(settle)
        picture = self.folder / f"{name}.png"
        subprocess.run(["import", "-window", "root", "-trim", "+repage", "-strip", picture], check=True)


def first_run(person, camera):
    person.type("Tallix Database IP Address:", "192.168.10.20")
    person.press("TEST")
    person.find("PASSED!")
    camera.take("settings_required")


def start(person, camera):
    person.find("Checking Folder Structure...", Atspi.Role.LABEL)
    camera.take("splash", settle=0)
    log_in(person, camera)
    camera.take("main")


def log_in(person, camera=None):
    person.find("Tallix Reports Tool - Login")
    person.type("Username:", "Administrator")
    person.type("Password:", "Larkfield7")
    if camera:
        camera.take("login")
    person.press("Login To Reports")
    person.find("Your version of Tallix is up to date!")


def look_at_about(person, camera):
    person.press("About Tallix Reports")
    person.find("Tallix Reports Tool - About")
    camera.take("about")
    person.press("OK")


def read_report(person, camera):
    person.press("Preset Reports")
    person.choose("Available Reports", "Calls By Extension In Date Order")
    person.type("Extension:", "202")
    camera.take("preset_reports")
    person.press("Run Report")
    person.find("Tallix Reports Tool - Report Output")
    wait_for(lambda: not person.see("Please Wait..."), "the page")
    camera.take("report_output", settle=1)
    person.press("Close")


def watch_run(person, camera):
    """A report of all calls; nobody waits for its end, and a run has little time for questions."""
    person.press("Preset Reports")
    person.choose("Available Reports", "All Calls")
    person.press("Run Report")
    bar = person.find(None, Atspi.Role.PROGRESS_BAR)
    wait_for(lambda: bar.get_current_value() > 0, "the run to begin")
    camera.take("preset_progress", settle=0)


def choose_covers(person, camera):
    person.press("Export")
    person.find("Tallix Reports Tool - Report Cover/Backing")
    camera.take("cover_backing")
    person.press("Save and Exit")


def choose_fields(person, camera):
    person.press("Custom Reports")
    person.choose("Available Reports", "<Create New Report>")
    person.type("Extension:", "202")
    camera.take("custom_reports")
    person.press("Cancel")


def look_at_custody(person, camera):
    for entry, name in {"Archive": "archive", "Backup/Restore": "backup_restore"}.items():
        person.press(entry)
        person.find(f"Tallix Reports Tool - {CUSTODY[entry]}")
        camera.take(name)
        person.press("Close")


def look_at_options(person, camera):
    person.press("Options")
    person.find("Tallix Reports Tool - Options")
    for page in PAGES:
        person.choose("Pages", page)
        camera.take("options_" + page.lower().replace(" ", "_"))
    for page, button, name, leave in FROM_OPTIONS:
        person.choose("Pages", page)
        person.press(button)
        person.find(leave, Atspi.Role.PUSH_BUTTON)
        camera.take(name)
        person.press(leave)
        if name == "sites":  # asks, changed or not
            person.press("Yes")
        person.find("Pages", Atspi.Role.LIST)
    person.choose("Pages", "Tools")
    person.press("Edit Custom Mappings")
    person.find("Save Mapping", Atspi.Role.PUSH_BUTTON)
    camera.take("custom_mappings")
    person.press("Importer")
    person.find("Data Items")
    camera.take("importer")
    person.press("Cancel")


def session(person, camera):
    start(person, camera)
    look_at_about(person, camera)
    choose_covers(person, camera)
    read_report(person, camera)
    choose_fields(person, camera)
    look_at_custody(person, camera)
    look_at_options(person, camera)


def long_run(person, camera):
    """A session that ends in the middle of a run."""
    log_in(person)
    watch_run(person, camera)


def statistics(person, camera):
    person.find("Your version of Tallix is up to date!")
    camera.take("statistics")


def main(walk, pictures, *program):
    os.environ["TALLIX_STEP_MS"] = STEP_MS
    with Desktop():
        Atspi.generate_mouse_event(1279, 899, "abs")  # the pointer would highlight what is under it
        process = subprocess.Popen(program)
        try:
            walk(Person(), Camera(pictures))
        finally:
            process.kill()
            process.wait()


def shows(caption, name):
    """The walk to a window that is there at once."""
    def look(person, camera):
        person.find(caption)
        camera.take(name)
    return look


WALKS = {"first_run": first_run, "session": session, "long_run": long_run, "statistics": statistics,
         "cost_map": shows("Tallix Reports Tool - Call Cost Mappings", "cost_map")}
main(WALKS[sys.argv[1]], *sys.argv[2:])
