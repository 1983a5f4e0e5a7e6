#!/usr/bin/env python3
"""What the tool tells desktops and shells is valid, and agrees with what the program prints for --help."""
import configparser
import gzip
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

BUILD, SOURCES, PROGRAM = (pathlib.Path(path) for path in sys.argv[1:4])
PACKAGING = SOURCES / "packaging"


def run(*command, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, check=False, **options)


def options_of_help():
    return sorted(set(re.findall(r"^\s+(?:-\w, )?(--[a-z-]+)", run(PROGRAM, "--help").stdout, re.MULTILINE)))


def entry(file_name, section):
    parser = configparser.ConfigParser(interpolation=None, strict=True)
    parser.optionxform = str
    parser.read(PACKAGING / file_name, encoding="utf-8")
    return parser[section]


def mime_types(text):
    return [kind for kind in text.split(";") if kind]


class DesktopFiles(unittest.TestCase):
    def test_desktop_entry_is_valid(self):
        result = run("desktop-file-validate", PACKAGING / "orvane.desktop")
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_software_centers_can_read_the_description(self):
        result = run("appstreamcli", "validate", "--no-net", BUILD / "packaging" / "orvane.metainfo.xml")
        self.assertEqual(result.returncode, 0, result.stdout)

    def test_scenes_are_known_by_name_and_by_content(self):
        with tempfile.TemporaryDirectory() as folder:
            packages = pathlib.Path(folder) / "packages"
            packages.mkdir()
            (packages / "orvane.xml").write_bytes((PACKAGING / "orvane.xml").read_bytes())
            result = run("update-mime-database", folder)
            self.assertEqual(result.returncode, 0, result.stderr)
            globs = (pathlib.Path(folder) / "globs2").read_text(encoding="utf-8").splitlines()
            self.assertIn("50:application/x-orvane-scene:*.mrd", globs)
            magic = (pathlib.Path(folder) / "magic").read_bytes()
            self.assertIn(b"application/x-orvane-scene", magic)
            first_line = (SOURCES / "examples" / "robot.mrd").read_bytes().splitlines()[0]
            self.assertTrue(first_line.startswith(b"#mrd "))
            self.assertIn(b"#mrd ", magic)

    def test_each_kind_of_file_is_declared_somewhere(self):
        declared = (PACKAGING / "orvane.xml").read_text(encoding="utf-8")
        declared += pathlib.Path("/usr/share/mime/packages/freedesktop.org.xml").read_text(encoding="utf-8")
        for kind in mime_types(entry("orvane.desktop", "Desktop Entry")["MimeType"]):
            self.assertIn(f'type="{kind}"', declared)

    def test_file_managers_show_pictures_of_all_that_is_opened(self):
        thumbnailer = entry("orvane.thumbnailer", "Thumbnailer Entry")
        opened = entry("orvane.desktop", "Desktop Entry")["MimeType"]
        self.assertEqual(mime_types(thumbnailer["MimeType"]), mime_types(opened))

    def test_thumbnailer_makes_a_picture(self):
        with tempfile.TemporaryDirectory() as folder:
            picture = pathlib.Path(folder) / "thumbnail.png"
            words = entry("orvane.thumbnailer", "Thumbnailer Entry")["Exec"].split()
            values = {"%o": str(picture), "%sx%s": "128x128", "%i": str(SOURCES / "examples" / "robot.mrd")}
            command = [str(PROGRAM)] + [values.get(word, word) for word in words[1:]]
            environment = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
            result = run(*command, env=environment)
            self.assertEqual(result.returncode, 0, result.stderr)
            header = picture.read_bytes()[:24]
            self.assertEqual(header[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(header[16:24], (128).to_bytes(4, "big") * 2)

    def test_manual_page_has_each_option(self):
        manual = gzip.decompress((BUILD / "packaging" / "orvane.1.gz").read_bytes()).decode()
        manual = manual.replace("\\-", "-")
        for option in options_of_help():
            self.assertIn(option, manual)

    def test_shell_completes_each_option(self):
        script = f"""
            source /usr/share/bash-completion/bash_completion
            source {PACKAGING}/completion/orvane
            COMP_WORDS=({PROGRAM} --); COMP_CWORD=1; COMP_LINE="{PROGRAM} --"; COMP_POINT=${{#COMP_LINE}}
            _orvane {PROGRAM} -- {PROGRAM}
            printf '%s\\n' "${{COMPREPLY[@]}}"
        """
        result = run("bash", "-c", script)
        self.assertEqual(sorted(result.stdout.split()), options_of_help(), result.stderr)

    def test_shell_completes_files_by_their_kind(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("scene.mrd", "model.glb", "notes.txt"):
                (pathlib.Path(folder) / name).touch()
            script = f"""
                PATH={PROGRAM.parent}:$PATH
                source /usr/share/bash-completion/bash_completion
                source {PACKAGING}/completion/orvane
                COMP_WORDS=(orvane {folder}/); COMP_CWORD=1; COMP_LINE="orvane {folder}/"; COMP_POINT=${{#COMP_LINE}}
                _orvane orvane {folder}/ orvane
                printf '%s\\n' "${{COMPREPLY[@]##*/}}"
            """
            result = run("bash", "-c", script)
            self.assertEqual(sorted(result.stdout.split()), ["model.glb", "scene.mrd"], result.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
