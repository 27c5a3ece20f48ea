"""The program's texts, as its string table has them."""
import pathlib
import xml.etree.ElementTree

TABLES = pathlib.Path(__file__).resolve().parents[2] / "resources"


def texts(language="en"):
    """Every key's text."""
    tree = xml.etree.ElementTree.parse(TABLES / f"Localizable_{language}.ts")
    return {message.findtext("source"): message.findtext("translation") for message in tree.iter("message")}
