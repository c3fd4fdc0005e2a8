"""The exceptions of this package. Every one is a KavettaError; the design can be used further after any of them."""
from __future__ import annotations

from collections.abc import Sequence

__all__ = [
    "DesignRefused", "EntryRefused", "FileFailure", "KavettaError", "NotCalculated", "RunTimeFailure", "StudyRefused",
    "UnknownEntry",
]


class KavettaError(Exception):
    """What failed, in the language of the design where the program itself says it.

    details: what there is beyond the text, a list of str; the exceptions say what it holds.
    """

    def __init__(self, text: str = "", details: Sequence[str] = ()) -> None:
        super().__init__(text, list(details))
        self.text = text
        self.details = list(details)

    def __str__(self) -> str:
        return self.text


class UnknownEntry(KavettaError, KeyError):
    """There is no entry of this name. details: near."""

    @property
    def near(self) -> list[str]:
        """At most three names that resemble it, the nearest first."""
        return self.details

    __str__ = KavettaError.__str__


class EntryRefused(KavettaError, ValueError):
    """A text that the entry does not take. Where the program puts another one in its place, that one stands there."""


class DesignRefused(KavettaError):
    """A stage has refused the entries; the results of the stages before it can be read. details: messages."""

    @property
    def messages(self) -> list[str]:
        """What the program said in this calculation, a message each."""
        return self.details


class RunTimeFailure(DesignRefused):
    """A stage ended in a run-time failure, such as a division by zero. details as of DesignRefused."""


class FileFailure(KavettaError, OSError):
    """A file could not be read, or a file that was asked for could not be written. details: the notes of the files."""

    __str__ = KavettaError.__str__


class NotCalculated(KavettaError):
    """What is asked for comes from a calculation that has not run, or not since the entries were typed."""


class StudyRefused(KavettaError, ValueError):
    """A study that can't be run: an unknown entry or quantity, a range or a condition that is none."""
