#!/usr/bin/env python3
"""The packages work: the archive from any folder, the Debian package unpacked into an empty root."""
import os
import pathlib
import subprocess
import sys
import tarfile
import tempfile
import unittest

BUILD, CPACK = (pathlib.Path(path) for path in sys.argv[1:3])

DESKTOP_FILES = [
    "share/applications/orvane.desktop",
    "share/bash-completion/completions/orvane",
    "share/icons/hicolor/scalable/apps/orvane.svg",
    "share/man/man1/orvane.1.gz",
    "share/man/man1/orvane-import.1.gz",
    "share/metainfo/orvane.metainfo.xml",
    "share/mime/packages/orvane.xml",
    "share/thumbnailers/orvane.thumbnailer",
    "share/zsh/site-functions/_orvane",
]


def run(*command, **options):
    result = subprocess.run([str(word) for word in command], capture_output=True, text=True, check=False, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command} ended with {result.returncode}:\n{result.stdout}{result.stderr}")
    return result.stdout


class Packages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls.temporary.name)
        run(CPACK, "--config", BUILD / "CPackConfig.cmake", "-G", "TGZ;DEB", "-B", cls.folder / "packages",
            "-D", "CPACK_THREADS=0", cwd=BUILD)

    @classmethod
    def tearDownClass(cls):
        cls.temporary.cleanup()

    def only(self, pattern):
        found = list((self.folder / "packages").glob(pattern))
        self.assertEqual(len(found), 1, found)
        return found[0]

    def start(self, prefix):
        """Starts the tool that is installed below that folder, with nothing of this machine's user."""
        home = self.folder / "home"
        home.mkdir(exist_ok=True)
        environment = {"PATH": os.environ["PATH"], "HOME": str(home), "LC_ALL": "C.UTF-8",
                       "XDG_RUNTIME_DIR": str(home), "LSAN_OPTIONS": os.environ.get("LSAN_OPTIONS", "")}
        program = prefix / "bin" / "orvane"
        scene = prefix / "share" / "orvane" / "examples" / "robot.mrd"
        extensions = run(program, "--list-extensions", env=environment)
        self.assertIn("\tDvSFFloatWidget\tSFFloat\tSFFloat\n", extensions)
        self.assertIn("\tMaterial\tMaterial\n", extensions)
        model = self.folder / "robot.glb"
        run(program, "--no-settings", "--export", model, scene, env=environment)
        self.assertIn("Mesh", run(program, "--no-settings", "--list", model, env=environment))
        picture = self.folder / "window.png"
        run(program, "--no-settings", "--screenshot", picture, scene, env=environment)
        self.assertEqual(picture.read_bytes()[:8], b"\x89PNG\r\n\x1a\n")
        picture.unlink()
        for name in DESKTOP_FILES:
            self.assertTrue((prefix / name).is_file(), name)

    def test_archive_works_from_any_folder(self):
        first = self.folder / "some folder"
        with tarfile.open(self.only("*.tar.gz")) as archive:
            archive.extractall(first)
        [top] = first.iterdir()
        self.start(top)
        moved = self.folder / "moved"
        top.rename(moved)
        self.start(moved)

    def test_debian_package_works_in_an_empty_root(self):
        root = self.folder / "root"
        package = self.only("orvane_*.deb")
        run("dpkg-deb", "-x", package, root)
        self.start(root / "usr")
        self.assertFalse((root / "usr" / "include").exists())

    def test_debian_package_says_what_it_needs(self):
        depends = run("dpkg-deb", "-f", self.only("orvane_*.deb"), "Depends")
        for library in ("libqt6widgets6", "libassimp5", "libegl1", "libgl1-mesa-dri"):
            self.assertIn(library, depends)

    def test_package_for_plugin_authors_goes_with_its_own_version(self):
        package = self.only("orvane-dev_*.deb")
        version = run("dpkg-deb", "-f", package, "Version").strip()
        self.assertIn(f"orvane (= {version})", run("dpkg-deb", "-f", package, "Depends"))
        contents = run("dpkg-deb", "-c", package)
        for name in ("include/orvane/orvane/sdk.h", "cmake/Orvane/OrvaneConfig.cmake", "bin/orvane-plugin-test"):
            self.assertIn(name, contents)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
