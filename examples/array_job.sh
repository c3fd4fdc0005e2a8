#!/bin/sh
# A study as an array job of a batch system: each task calculates one part of it.
#     sbatch array_job.sh                  # or by the array option of another system, with tasks 1 .. PARTS
#     sh array_job.sh join                 # once all tasks have ended: study.csv, as one process would have written it
# A task that was lost is started again with its number, and goes on where it stood.
#SBATCH --job-name=study
#SBATCH --array=1-100
#SBATCH --cpus-per-task=1

project=${PROJECT:-engine_oil.KVT}
parts=${PARTS:-100}

if [ "$1" = join ]; then
    cp study_1.csv study.csv || exit 1
    part=2
    while [ "$part" -le "$parts" ]; do
        [ ! -e "study_$part.csv.unfinished" ] || { echo "study_$part.csv is not finished" >&2; exit 1; }
        tail -n +2 "study_$part.csv" >> study.csv || exit 1
        part=$((part + 1))
    done
    exit 0
fi

part=${SLURM_ARRAY_TASK_ID:-${PBS_ARRAY_INDEX:-${SGE_TASK_ID:-$1}}}
exec kvt study "$project" \
    --vary ecc=2.4:3 --vary thick=8:16 --sample "${SAMPLE:-sobol:1000000}" --seed 1 \
    --record capacity,overall_eff_max,ripple_percent --where 'outer_diameter<=58' \
    --shard "$part/$parts" --jobs 1 --resume --out "study_$part.csv"
