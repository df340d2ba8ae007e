# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's plugins, as the command line uses them: what they hook into, without the commands that they bring.

A plugin is code of this machine: it is looked for where the configuration says, never below another root. Its own
configuration is the managed system's. Where that is another root, which doesn't say where plugins are, those of this
machine count for which it has a configuration.
"""

from __future__ import annotations

import contextlib
import importlib
import logging
import os
import sys
import traceback
import types
from typing import Any, Callable, Iterator, List, Sequence, Type

import dnf
import dnf.conf
import dnf.conf.config
import dnf.exceptions
import dnf.plugin
import libdnf.conf
from dnf.i18n import _ as in_dnfs_words

from ..errors import YumBaseError
from ..root import below, within
from ..texts import _

_PACKAGE = dnf.plugin.DYNAMIC_PACKAGE
_AFTERWARDS = "transaction"
"""The hook at which everything has been done."""


class Plugins(dnf.plugin.Plugins):
    """The plugins of one Base.

    dnf lets one Base of a process load plugins. Here each has modules and objects of its own, and several may
    live at a time: a session's own Base, and others for a while.
    """

    def __init__(self, failed: Callable[[str], None], strict: bool) -> None:
        """`failed` is told of each plugin that fails. If `strict`, what stops the command line raises, too."""
        super().__init__()
        self._failed = failed
        self._strict = strict

    def _load(self, conf: dnf.conf.MainConf, skips: Sequence[str] = (), enable_plugins: Sequence[str] = ()) -> None:
        for name in [name for name in sys.modules if name.startswith(f"{_PACKAGE}.")]:
            # It may have been changed, or be of another configuration.
            del sys.modules[name]
        importlib.invalidate_caches()
        package = types.ModuleType(_PACKAGE)
        package.__path__ = []
        sys.modules[_PACKAGE] = package
        try:
            for file in dnf.plugin._get_plugins_files(conf.pluginpath, skips, enable_plugins):
                if _is_meant(conf, file):
                    self._import(package, file)
        finally:
            self._unload()
        found, usable = self.plugin_cls, []
        for plugin in found:
            with self._guarded(plugin, "enabled", stops=True):
                self.plugin_cls = [plugin]
                self._check_enabled(conf, enable_plugins)
                usable += self.plugin_cls
        self.plugin_cls = usable
        if usable:
            names = ", ".join(sorted(plugin.name for plugin in usable))
            logging.getLogger("dnf").debug(in_dnfs_words("Loaded plugins: %s"), names)

    def _import(self, package: types.ModuleType, file: str) -> None:
        folder, name = os.path.split(os.path.splitext(file)[0])
        package.__path__.append(folder)
        with self._guarded(name, "import"):
            module = importlib.import_module(f"{_PACKAGE}.{name}")
            for value in list(vars(module).values()):
                # What a command registers is no value of its module.
                if isinstance(value, type) and dnf.Plugin in value.__bases__ and value not in self.plugin_cls:
                    self.plugin_cls.append(value)

    def _unload(self) -> None:
        """Lets the next Base load plugins."""
        sys.modules.pop(_PACKAGE, None)

    def _run_init(self, base: dnf.Base, cli: Any = None) -> None:
        for plugin in self.plugin_cls:
            with self._guarded(plugin, "__init__", stops=True):
                self.plugins.append(plugin(base, cli))

    def _caller(self, method: str) -> None:
        for plugin in list(self.plugins):
            with self._guarded(plugin, method):
                getattr(plugin, method)()

    @contextlib.contextmanager
    def _guarded(self, plugin: Any, step: str, stops: bool = False) -> Iterator[None]:
        """Tells of a failure in the block. The command line ends with an error that a plugin gives as dnf's; if
        `stops`, with any. Behind a transaction there is nothing left to stop."""
        try:
            yield
        except (Exception, SystemExit) as error:  # noqa: BLE001 - whatever somebody else's code comes to
            meant = isinstance(error, dnf.exceptions.Error)
            words = str(error) if meant else f"{type(error).__name__}: {error}"
            name = plugin if isinstance(plugin, str) else plugin.name
            text = _("The plugin {name} failed ({step}): {error}").format(name=name, step=step, error=words)
            logger = logging.getLogger("dnf")
            logger.debug("%s", traceback.format_exc())
            if self._strict and step != _AFTERWARDS and (stops or meant or isinstance(error, SystemExit)):
                raise YumBaseError(text) from error
            logger.warning("%s", text)
            self._failed(text)


def _is_meant(conf: dnf.conf.MainConf, file: str) -> bool:
    """Whether a plugin of this machine is one for the managed system, too."""
    if conf.installroot == "/" or conf._get_priority("pluginpath") > dnf.conf.config.PRIO_DEFAULT:
        return True
    name = os.path.splitext(os.path.basename(file))[0]
    return any(_settings(conf, one) for one in {name, name.replace("_", "-")})


def _settings(conf: dnf.conf.MainConf, name: str) -> List[str]:
    """The files below another root that configure a plugin of this name."""
    root = conf.installroot
    files = [below(root, f"{within(root, folder)}/{name}.conf") for folder in conf.pluginconfpath]
    return [file for file in files if os.path.isfile(file)]


_read_config = dnf.Plugin.read_config.__func__


def _read_config_below_root(plugin: Type[dnf.Plugin], conf: dnf.conf.MainConf) -> libdnf.conf.ConfigParser:
    """A plugin's configuration. All paths of it are those of the managed system. dnf.exceptions.ConfigError."""
    root = conf.installroot
    if root == "/":
        return _read_config(plugin, conf)
    parser = libdnf.conf.ConfigParser()
    for file in _settings(conf, plugin.config_name or plugin.name):
        try:
            parser.read(file)
        except Exception as error:  # noqa: BLE001 - libdnf's own classes differ from release to release
            raise dnf.exceptions.ConfigError(str(error)) from error
    for section in parser.sections():
        for option in parser.options(section):
            value = parser.getValue(section, option)
            if value.startswith("/"):
                parser.setValue(section, option, below(root, value))
    return parser


# Plugins call it as a method of their own.
dnf.Plugin.read_config = classmethod(_read_config_below_root)
