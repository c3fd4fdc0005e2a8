"""The stub of the module says what is in the module, and the package is typed and documented."""
import ast
import inspect
import pathlib

import kavetta
from kavetta import _core

PACKAGE = pathlib.Path(kavetta.__file__).parent
STUB = ast.parse((PACKAGE / "_core.pyi").read_text())


def public(names):
    return {name for name in names if not name.startswith("_")}


def names_of(body):
    """The names that a body of the stub declares."""
    for node in body:
        if isinstance(node, (ast.FunctionDef, ast.ClassDef)):
            yield node.name
        elif isinstance(node, ast.AnnAssign):
            yield node.target.id


def test_names_every_name_of_the_module():
    assert public(names_of(STUB.body)) == public(vars(_core))


def test_names_every_method_of_a_class():
    for node in STUB.body:
        if isinstance(node, ast.ClassDef):
            members = vars(getattr(_core, node.name))
            of_enumeration = {"name", "value"} if "__members__" in members else set()
            assert public(names_of(node.body)) == public(members) - of_enumeration, node.name


def arguments_of(documented):
    """The names of a method's arguments, from the signature that the module has in its docstring."""
    signature = documented.__doc__.splitlines()[0]
    inside = signature[signature.index("(") + 1 : signature.rindex(") ->")]
    return [part.split(":")[0].strip() for part in inside.split(",") if ":" in part and "[" not in part.split(":")[0]]


def test_names_the_arguments_of_the_functions():
    for node in STUB.body:
        if isinstance(node, ast.FunctionDef):
            assert [argument.arg for argument in node.args.args] == arguments_of(getattr(_core, node.name))


def test_the_package_says_that_it_is_typed():
    assert (PACKAGE / "py.typed").exists()


def test_everything_public_has_a_docstring():
    for name in kavetta.__all__:
        thing = getattr(kavetta, name)
        assert inspect.getdoc(thing), name
        if inspect.isclass(thing):
            for part, member in vars(thing).items():
                documented = not part.startswith("_") and (callable(member) or isinstance(member, (property, classmethod)))
                assert not documented or inspect.getdoc(getattr(thing, part)), f"{name}.{part}"
