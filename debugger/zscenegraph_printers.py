"""How gdb shows the values of zscenegraph: ids, variants, parameters, weaves, gradients, colours.

gdb loads this with the library when it is installed where gdb looks (docs/debugging.md); elsewhere
by `source`. The library must have debug information."""

import gdb
import gdb.printing

# More rows and columns of a weave are no picture any more, and what is not yet initialised may claim
# to have any number of elements.
MOST = 64


def text_of(string):
    """A QString."""
    d = string["d"]
    size = int(d["size"])
    if size == 0:
        return ""
    units = gdb.selected_inferior().read_memory(int(d["ptr"]), 2 * min(size, 1000))
    return bytes(units).decode("utf-16-le", "replace")


def std_text_of(string):
    """A std::string, whatever gdb itself knows of the standard library."""
    size = min(int(string["_M_string_length"]), 1000)
    pointer = string["_M_dataplus"]["_M_p"]
    memory = gdb.selected_inferior().read_memory(int(pointer), size) if size else b""
    return bytes(memory).decode("utf-8", "replace")


def number(value):
    return f"{float(value):g}"


def rgba_of(color):
    return "(" + ", ".join(number(color[c]) for c in "rgba") + ")"


def short(value):
    """One value inside another one."""
    kind = value.type.strip_typedefs()
    if str(kind.unqualified()) == "QString":
        return '"' + text_of(value) + '"'
    if kind.code == gdb.TYPE_CODE_FLT:
        return number(value)
    visualizer = gdb.default_visualizer(value)
    shown = visualizer.to_string() if visualizer else None
    return str(shown) if shown is not None else str(value)


class Printer:
    """One text; what cannot be read, as before its constructor ran, says so."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        try:
            return self.shown()
        except (gdb.MemoryError, OverflowError):
            return "not readable"


class IdPrinter(Printer):
    """The renderer's ids are of one template, the library's are classes."""

    def shown(self):
        kind = self.value.type.strip_typedefs().unqualified()
        ours = str(kind).startswith("zsg::")
        name = str(kind if ours else kind.template_argument(0))
        name = name.rsplit("::", 1)[-1].removesuffix("Tag")
        word = int(self.value["value_" if ours else "value"])
        return f"{name} {'invalid' if word == 0xFFFFFFFF else word}"


class VariantPrinter(Printer):
    def shown(self):
        value = self.value.cast(self.value.dynamic_type)
        name = str(value.type.unqualified())
        if "PointerVariant<" in name:
            target = value["target_"]
            return f"holder at {int(target):#x} of {short(target.dereference())}"
        if "ValueVariant<" in name:
            return f"holder of {short(value['value_'])}"
        return "holder of nothing"


class ParameterPrinter(Printer):
    def shown(self):
        data = self.value["d_"]["value"]
        if int(data) == 0:
            return "parameter without data"
        holder = data["value"]
        held = "pure" if int(holder) == 0 else VariantPrinter(holder.dereference()).to_string()
        limits = ""
        if bool(data["hasLimits"]):
            limits = f", {number(data['minimum'])} to {number(data['maximum'])}"
        name, kind = text_of(data["name"]), str(data["type"]).rsplit("::")[-1]
        return f"parameter '{name}' ({kind}){limits}: {held}"


class WeavePrinter(Printer):
    """Row 0 first; # where the weft is on top, . where the warp is."""

    def shown(self):
        grid = self.value["d_"]["grid"]["grid_"]
        warp, weft = int(grid["numWarp"]), int(grid["numWeft"])
        cells = grid["cells"]
        lines = [f"weave of {warp} x {weft}"]
        for y in range(min(weft, MOST)):
            row = (int(cells[y * warp + x]) for x in range(min(warp, MOST)))
            lines.append("  " + "".join("#" if cell else "." for cell in row))
        if warp > MOST or weft > MOST:
            lines.append("  ...")
        return "\n".join(lines)


class GradientPrinter(Printer):
    def shown(self):
        stops = self.value["stops_"]["d"]
        lines = [f"gradient{', blended' if bool(self.value['blend_']) else ''}"]
        for i in range(min(int(stops["size"]), MOST)):
            stop = stops["ptr"][i]
            lines.append(f"  {number(stop['location_'])}: {rgba_of(stop['color_'])}")
        return "\n".join(lines)


class ColorPrinter(Printer):
    def shown(self):
        value = self.value["d_"]["d"]
        data = value["ptr"] if value.type.strip_typedefs().code == gdb.TYPE_CODE_STRUCT else value
        elements = data.dereference()["elements"]["_M_impl"]
        first, end = elements["_M_start"], elements["_M_finish"]
        active = int(data["activeIndex"])
        lines = []
        for i in range(min(int(end - first), MOST)):
            name = std_text_of(first[i]["name_"])
            mark = "*" if bool(data["multi"]) and i == active else ""
            lines.append(f"{mark}{rgba_of(first[i]['rgba_'])}{' ' + name if name else ''}")
        head = IdPrinter(data["id"]).to_string()
        name = std_text_of(data["name"])
        if bool(data["multi"]):
            return f"multi-colour {head} '{name}' [{'; '.join(lines)}]"
        return f"colour {head} '{name}' {lines[0] if lines else '(0, 0, 0, 1)'}"


def register(objfile):
    printers = gdb.printing.RegexpCollectionPrettyPrinter("zscenegraph")
    printers.add_printer("Id", "^nyx::Id<.*>$", IdPrinter)
    printers.add_printer("MaterialId", "^zsg::(Material|ShaderNode|ShaderEdge)Id$", IdPrinter)
    printers.add_printer("Variant", "^zsg::((Value|Pointer)Variant<.*>|Variant)$", VariantPrinter)
    printers.add_printer("Parameter", "^zsg::Parameter$", ParameterPrinter)
    printers.add_printer("WeavePattern", "^zsg::WeavePattern$", WeavePrinter)
    printers.add_printer("ColorGradient", "^zsg::ColorGradient$", GradientPrinter)
    printers.add_printer("ZColorExt", "^ZColorExt(Alpha)?$", ColorPrinter)
    gdb.printing.register_pretty_printer(objfile, printers, replace=True)


# The program, and every library of it, may hold these values.
register(None)
