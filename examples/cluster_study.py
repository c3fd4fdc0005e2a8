#!/usr/bin/env python3
"""A study on many machines, by Dask: it is calculated in pieces, and each piece that is done is kept in a file.

Usage: cluster_study.py PROJECT.KVT FOLDER --vary ecc=2:3 --vary thick=8:16 --sample sobol:100000
           [--record capacity,ripple_percent] [--where 'outer_diameter<=58'] [--seed N] [--pieces N] [--scheduler ADDRESS]

Without the address of a scheduler it starts workers on the processors of this machine. Pieces of a worker that is lost are
calculated by another one; a run that was ended goes on with the pieces that are missing when it is started again. In the
end FOLDER/study.csv holds all rows, equal to those of one process. Every worker needs the package kavetta.
"""
import argparse
import csv
import json
import pathlib
import sys

import numpy as np
from distributed import Client, as_completed

import kavetta


def plan_of(arguments):
    """What kavetta.study is asked for, as it is sent to the workers."""
    vary = dict(text.split("=", 1) for text in arguments.vary)
    record = arguments.record.split(",")
    return {"vary": vary, "sample": arguments.sample, "record": record, "where": arguments.where, "seed": arguments.seed}


def check_folder(folder, design, plan, pieces):
    """The pieces of one study stand in a folder; those of another one are not mixed with them."""
    folder.mkdir(parents=True, exist_ok=True)
    study = {"version": kavetta.__version__, "entries": dict(design.entries), "plan": plan, "pieces": pieces}
    file = folder / "study.json"
    if not file.exists():
        file.write_text(json.dumps(study))
    elif json.loads(file.read_text()) != study:
        raise SystemExit(f"{file}: this folder holds another study")


def piece_file(folder, number):
    return folder / f"piece_{number}.npz"


def save_piece(folder, number, columns):
    """A file under its name is whole: it gets the name once it is written."""
    unfinished = folder / f"unfinished_{number}.npz"
    texts = {name: column.astype(str) for name, column in columns.items() if column.dtype == object}
    np.savez(unfinished, **{**columns, **texts})
    unfinished.replace(piece_file(folder, number))


def load_piece(folder, number):
    with np.load(piece_file(folder, number)) as columns:
        return dict(columns)


def run_pieces(client, design, plan, pieces, folder, piece_done=lambda number: None):
    """Calculates the pieces that are missing in the folder, one a thread of the workers."""
    futures = {}
    for number in range(1, pieces + 1):
        if not piece_file(folder, number).exists():
            future = client.submit(kavetta.study, design, **plan, part=(number, pieces), jobs=1, pure=False)
            futures[future] = number
    for future, columns in as_completed(futures, with_results=True):
        save_piece(folder, futures[future], columns)
        piece_done(futures[future])


def joined_pieces(folder, pieces):
    """The columns of the whole study, in the order of the sample."""
    parts = [load_piece(folder, number) for number in range(1, pieces + 1)]
    return {name: np.concatenate([part[name] for part in parts]) for name in parts[0]}


def write_table(path, columns):
    with open(path, "w", newline="", encoding="utf-8") as file:
        table = csv.writer(file)
        table.writerow(columns)
        table.writerows(zip(*(column.tolist() for column in columns.values())))


def read_arguments(arguments):
    parser = argparse.ArgumentParser(description="A study on many machines, by Dask")
    parser.add_argument("project", help="project file, .KVT")
    parser.add_argument("folder", type=pathlib.Path, help="folder of the pieces and of study.csv")
    parser.add_argument("--vary", action="append", required=True, help="as kvt study takes it")
    parser.add_argument("--sample", default="grid")
    parser.add_argument("--record", default="capacity,overall_eff_max,ripple_percent")
    parser.add_argument("--where", action="append", default=[])
    parser.add_argument("--seed", type=int, default=0)
    parser.add_argument("--pieces", type=int, default=100, help="some for each thread; a piece is what a lost worker loses")
    parser.add_argument("--scheduler", help="address, such as tcp://host:8786")
    return parser.parse_args(arguments)


def main(arguments):
    asked = read_arguments(arguments)
    design = kavetta.Design.open(asked.project)
    plan = plan_of(asked)
    check_folder(asked.folder, design, plan, asked.pieces)
    with Client(asked.scheduler) if asked.scheduler else Client() as client:
        run_pieces(client, design, plan, asked.pieces, asked.folder)
    write_table(asked.folder / "study.csv", joined_pieces(asked.folder, asked.pieces))


if __name__ == "__main__":
    main(sys.argv[1:])
