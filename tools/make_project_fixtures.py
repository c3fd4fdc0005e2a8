#!/usr/bin/env python3
"""Writes the project file fixtures of tests/data/projects, byte by byte."""

from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "tests" / "data" / "projects"

# The 59 lines in full. Boxes hold what a user may type: commas, blanks, signs, words.
FULL = [
    b"C:\\pumps\\full.KVT", b"full", b"mm",
    b"1,5", b"12", b" 8 ", b"60.0", b"7", b"0,12", b"3", b"2.8", b"16.5", b"8.4", b"2", b"1.0", b"12.3456", b" 1 ",
    b"C:\\cnc\\troc.txt", b"C:\\cnc\\inner.txt", b"C:\\cnc\\xyouter.txt",
    b"C:\\cnc\\inneroffset.txt", b"C:\\cnc\\outeroffset.txt", b"C:\\cnc\\outer.txt",
    b"0.03",
    b"10", b"-11.5", b"+160", b"161", b"190", b"191", b"340", b"341", b" 1 ", b" 0 ", b"1.5",
    b"870", b"46", b"0.01", b"500", b"5000", b"1", b"6", b"210", b"205", b"0.30", b"0.28", b"0.1",
    b" 1 ", b"1.4", b" 1 ", b"4", b"1.2", b"0.8",
    b"12.1", b"17.9", b"12.2", b"17.8",
    b"22.7",
    b"0.05",
]
assert len(FULL) == 59


def with_line(number, line):
    """The full lines with another text in the line of that number, counted from 1."""
    return FULL[: number - 1] + [line] + FULL[number:]


def write(name, lines, end=b"\r\n", last_end=True):
    text = end.join(lines) + (end if lines and last_end else b"")
    (FOLDER / (name + ".KVT")).write_bytes(text)


def high_bytes():
    """All bytes 80 to FF, and umlauts in the project's name."""
    lines = with_line(2, "Zahnringpumpe für Öl, Größe 3".encode("cp1252"))
    lines[17] = bytes(range(0x80, 0x100))
    return lines


def main():
    FOLDER.mkdir(parents=True, exist_ok=True)
    for count in (22, 23, 24, 53, 57, 58, 59):
        write(f"lines_{count}", FULL[:count])
    write("lines_60", FULL + [b"behind the last line"])
    # A named line behind each length. Only behind 59 lines it is one; before, its place gives it its meaning.
    for count in (23, 53, 57, 58, 59):
        write(f"named_{count}", FULL[:count] + ["UTS_value= 1.100,5 für Öl = roh ".encode("cp1252")])
    write("named_others", FULL + [b"unknown=1", b"ecc=9", b"UTS_value", b"uts_value=1", b"UTS_value=520", b"UTS_value=2"])
    write("empty", [])
    write("inches", with_line(3, b""))
    write("integer_word", with_line(17, b"four"))
    write("integer_blanks", with_line(17, b"\t   4\t "))
    write("integer_fraction", with_line(17, b"2.5"))
    write("integer_too_large", with_line(17, b" 32768 "))
    write("check_word", with_line(48, b"True"))
    write("check_two", with_line(33, b" 2 "))
    write("high_bytes", high_bytes())
    write("lone_cr", FULL, end=b"\r")
    write("lone_lf", FULL, end=b"\n")
    write("last_line_open", FULL, last_end=False)


if __name__ == "__main__":
    main()
