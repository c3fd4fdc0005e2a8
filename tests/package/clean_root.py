"""A clean root: the files of some installed packages and of all that they depend on, and a package database that knows no
others. What is started in it finds nothing else of this machine.
"""
import pathlib
import re
import shutil
import subprocess

# Papers: their folders are enough.
LEFT_OUT = re.compile(r"/usr/share/(?:doc|man|info|locale)/.")
DATABASE = pathlib.Path("var/lib/dpkg")
MERGED = ("bin", "sbin", "lib", "lib32", "lib64", "libx32")


def run(*command, **options):
    return subprocess.run(list(map(str, command)), check=True, capture_output=True, text=True, **options).stdout


def read_paragraphs(text):
    """The paragraphs of a package database: name, fields and the text itself."""
    for paragraph in re.split(r"\n\n+", text.strip()):
        fields = dict(re.findall(r"^([A-Za-z-]+): (.*)$", paragraph, re.MULTILINE))
        yield fields["Package"], fields, paragraph


def first_names(dependencies):
    """"a (>= 1), b | c" is a list of alternatives a line: [["a"], ["b", "c"]]."""
    return [[re.match(r"[^\s(:]+", name.strip())[0] for name in group.split("|")]
            for group in dependencies.split(",") if group.strip()]


class machine_packages:
    """The packages that are installed on this machine."""

    def __init__(self):
        self.fields, self.paragraphs, self.providers = {}, {}, {}
        text = (pathlib.Path("/") / DATABASE / "status").read_text(encoding="utf-8")
        for name, fields, paragraph in read_paragraphs(text):
            if fields["Status"].endswith(" installed"):
                self.fields[name], self.paragraphs[name] = fields, paragraph
                for provided in first_names(fields.get("Provides", "")):
                    self.providers.setdefault(provided[0], name)

    def find(self, alternatives):
        """The installed package that serves; None without one."""
        for name in alternatives:
            if name in self.fields:
                return name
            if name in self.providers:
                return self.providers[name]
        return None

    def essential(self):
        return [name for name, fields in self.fields.items() if fields.get("Essential") == "yes"]

    def with_dependencies(self, names):
        """These packages and all that they depend on; what is not installed is left to dpkg to complain about."""
        found, waiting = set(), list(names)
        while waiting:
            name = waiting.pop()
            if name in found:
                continue
            found.add(name)
            for field in ("Pre-Depends", "Depends"):
                needed = map(self.find, first_names(self.fields[name].get(field, "")))
                waiting += [one for one in needed if one is not None]
        return found

    def files(self, names):
        listed = run("dpkg-query", "--listfiles", *sorted(names)).splitlines()
        return [path for path in listed if path.startswith("/") and path != "/."
                and (not LEFT_OUT.match(path) or pathlib.Path(path).is_dir())]


class clean_root:
    def __init__(self, folder, machine):
        self.folder, self.machine, self.packages = folder, machine, set()
        for name in MERGED:
            if pathlib.Path("/", name).is_symlink():
                (folder / "usr" / name).mkdir(parents=True, exist_ok=True)
                (folder / name).symlink_to(f"usr/{name}")
        for name in ("proc", "dev", "tmp", "home", "run", "var/log", DATABASE / "info", DATABASE / "updates",
                     DATABASE / "triggers"):
            (folder / name).mkdir(parents=True, exist_ok=True)
        (folder / "etc").mkdir()
        (folder / "etc/passwd").write_text("root:x:0:0:root:/root:/bin/sh\n", encoding="ascii")
        (folder / "etc/group").write_text("root:x:0:\n", encoding="ascii")

    def add(self, names):
        """Adds installed packages of the machine with their dependencies."""
        added = self.machine.with_dependencies(names) - self.packages
        self.packages |= added
        links = run("find", "/usr/bin", "/usr/sbin", "-lname", "/etc/alternatives/*").splitlines()
        self.copy([*self.machine.files(added), *links, *map(str, pathlib.Path("/etc/alternatives").iterdir())])
        self.write_database()
        self.run("ldconfig")

    def copy(self, paths):
        there = "\n".join(path.lstrip("/") for path in paths if pathlib.Path(path).is_symlink()
                          or pathlib.Path(path).exists())
        archive = self.folder.with_suffix(".tar")
        run("tar", "--create", "--file", archive, "--directory=/", "--no-recursion", "--files-from=-", input=there)
        run("tar", "--extract", "--file", archive, f"--directory={self.folder}", "--keep-directory-symlink", "--no-same-owner")
        archive.unlink()

    def write_database(self):
        database, own = pathlib.Path("/") / DATABASE, self.folder / DATABASE
        status = own / "status"
        known = read_paragraphs(status.read_text(encoding="utf-8")) if status.exists() else ()
        installed_here = [text for name, _, text in known if name not in self.packages]
        texts = [self.machine.paragraphs[name] for name in sorted(self.packages)]
        status.write_text("".join(text + "\n\n" for text in texts + installed_here), encoding="utf-8")
        shutil.copy(database / "info/format", own / "info/format")
        for file in (database / "info").iterdir():
            if file.name.rpartition(".")[0].split(":")[0] in self.packages:
                shutil.copy2(file, own / "info" / file.name)
        interests = (database / "triggers/File").read_text(encoding="utf-8").splitlines()
        kept = [line for line in interests if line.split(" ")[1].split("/")[0].split(":")[0] in self.packages]
        (own / "triggers/File").write_text("".join(line + "\n" for line in kept), encoding="utf-8")

    def mount(self):
        """What programs expect of the system. The mounts end with the process that this runs in."""
        for source, target in (("/dev", "dev"), ("/tmp/.X11-unix", "tmp/.X11-unix")):
            (self.folder / target).mkdir(parents=True, exist_ok=True)
            pathlib.Path(source).mkdir(mode=0o1777, exist_ok=True)
            run("mount", "--rbind", source, self.folder / target)
        run("mount", "-t", "proc", "proc", self.folder / "proc")

    def command(self, *command):
        return ["chroot", str(self.folder), *map(str, command)]

    def run(self, *command, **options):
        return run(*self.command(*command), **options)

    def paths(self):
        """Every path but those of the mounts."""
        mounts = [f"-path {self.folder}/{name} -prune -o" for name in ("proc", "dev", "tmp/.X11-unix")]
        found = run("find", self.folder, *" ".join(mounts).split(), "-printf", "/%P\n")
        return set(found.splitlines())
