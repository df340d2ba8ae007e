# SPDX-License-Identifier: GPL-2.0-or-later
"""The names of dnf, hawkey, libdnf and rpm that the package uses, one by one.

dnf keeps only its documented names stable. A test that fails here tells which name a new version has
taken away, before anything else breaks in ways that are harder to read.
"""

from __future__ import annotations

import inspect
import logging

from libraries import only_with

only_with("dnf4")

import dnf
import dnf.callback
import dnf.cli.commands.clean
import dnf.cli.output
import dnf.conf
import dnf.conf.config
import dnf.conf.read
import dnf.const
import dnf.crypto
import dnf.db.history
import dnf.exceptions
import dnf.i18n
import dnf.lock
import dnf.logging
import dnf.package
import dnf.plugin
import dnf.repo
import dnf.rpm
import dnf.rpm.miscutils
import dnf.sack
import dnf.transaction
import dnf.transaction_sr
import dnf.util
import dnf.yum.rpmtrans
import hawkey
import libdnf.conf
import libdnf.error
import libdnf.transaction
import pytest
import rpm

NAMES = [
    (dnf.const, "VERSION"),
    (dnf.db.history.RPMTransactionItemWrapper, "reason"),
    (dnf.db.history.SwdbInterface, "env"),
    (dnf.db.history.SwdbInterface, "group"),
    (dnf.db.history.SwdbInterface, "old"),
    (dnf.db.history.SwdbInterface, "swdb"),
    (dnf.transaction_sr, "VERSION"),
    (dnf.transaction_sr, "TransactionReplayError"),
    (dnf.transaction_sr, "serialize_transaction"),
    (dnf.transaction_sr.TransactionReplay, "post_transaction"),
    (dnf.transaction_sr.TransactionReplay, "run"),
    (libdnf.transaction.Swdb, "resolveRPMTransactionItemReason"),
    (dnf.const, "LOG"),
    (dnf.const, "LOG_MARKER"),
    (dnf.const, "LOG_RPM"),
    (dnf.cli.output, "DepSolveProgressCallBack"),
    (dnf.cli.output.Output, "list_transaction"),
    (dnf.i18n, "_"),
    (dnf.lock, "build_log_lock"),
    (dnf.logging, "ALL"),
    (dnf.logging, "DDEBUG"),
    (dnf.logging, "Logging"),
    (dnf.logging, "MultiprocessRotatingFileHandler"),
    (dnf.logging, "SUBDEBUG"),
    (dnf.logging, "_cfg_verbose_val2level"),
    (dnf.logging, "_create_filehandler"),
    (dnf.sack, "Sack"),
    (dnf.sack, "_build_sack"),
    (dnf.callback, "DownloadProgress"),
    (dnf.callback, "STATUS_OK"),
    (dnf.callback, "STATUS_ALREADY_EXISTS"),
    (dnf.callback, "STATUS_MIRROR"),
    (dnf.callback, "STATUS_DRPM"),
    (dnf.callback, "STATUS_FAILED"),
    (dnf.cli.commands.clean, "_clean"),
    (dnf.cli.commands.clean, "_filter"),
    (dnf.cli.commands.clean, "_tree"),
    (dnf.conf, "Conf"),
    (dnf.conf, "MainConf"),
    (dnf.conf.read.RepoReader, "_get_repos"),
    (dnf.conf.config, "PRIO_DEFAULT"),
    (dnf.conf.config, "PRIO_MAINCONFIG"),
    (dnf.conf.MainConf, "_has_option"),
    (dnf.conf.MainConf, "_get_value"),
    (dnf.conf.MainConf, "_set_value"),
    (dnf.conf.MainConf, "read"),
    (dnf.exceptions, "CompsError"),
    (dnf.exceptions, "DownloadError"),
    (dnf.exceptions, "Error"),
    (dnf.exceptions, "LockError"),
    (dnf.exceptions, "ProcessLockError"),
    (dnf.exceptions, "RepoError"),
    (dnf.lock, "build_download_lock"),
    (dnf.lock, "build_metadata_lock"),
    (dnf.lock, "build_rpmdb_lock"),
    (dnf.Plugin, "read_config"),
    (dnf.plugin, "DYNAMIC_PACKAGE"),
    (dnf.plugin, "_get_plugins_files"),
    (dnf.plugin.Plugins, "_caller"),
    (dnf.plugin.Plugins, "_check_enabled"),
    (dnf.plugin.Plugins, "_load"),
    (dnf.plugin.Plugins, "_run_init"),
    (dnf.plugin.Plugins, "_unload"),
    (dnf.package.Package, "_from_system"),
    (dnf.package.Package, "_is_local_pkg"),
    (dnf.package.Package, "get_header"),
    (dnf.package.Package, "localPkg"),
    (dnf.package.Package, "returnIdSum"),
    (dnf.crypto, "keyids_from_pubring"),
    (dnf.repo, "CACHE_FILES"),
    (dnf.repo, "SYNC_LAZY"),
    (dnf.repo.Repo, "_pubring_dir"),
    (dnf.repo.Repo, "_set_key_import"),
    (dnf.repo.Repo, "disable"),
    (dnf.repo.Repo, "enable"),
    (dnf.repo.Repo, "get_metadata_path"),
    (dnf.repo.Repo, "load"),
    (dnf.repo.Repo, "load_metadata_other"),
    (dnf.repo.Repo, "remote_location"),
    (dnf.repo.Repo, "set_progress_bar"),
    (dnf.rpm, "detect_releasever"),
    (dnf.rpm.miscutils, "_process_rpm_output"),
    (dnf.rpm.miscutils, "checkSig"),
    (dnf.transaction, "BACKWARD_ACTIONS"),
    (dnf.transaction, "FORWARD_ACTIONS"),
    (dnf.util, "am_i_root"),
    (dnf.util, "ensure_dir"),
    (dnf.yum.rpmtrans, "TransactionDisplay"),
    (hawkey, "Exception"),
    (hawkey, "IGNORE_EXCLUDES"),
    (libdnf.conf.ConfigParser, "substitute"),
    (libdnf.error, "Error"),
    (libdnf.transaction, "TransactionItemAction_DOWNGRADE"),
    (libdnf.transaction, "TransactionItemAction_DOWNGRADED"),
    (libdnf.transaction, "TransactionItemAction_INSTALL"),
    (libdnf.transaction, "TransactionItemAction_OBSOLETE"),
    (libdnf.transaction, "TransactionItemAction_OBSOLETED"),
    (libdnf.transaction, "TransactionItemAction_REASON_CHANGE"),
    (libdnf.transaction, "TransactionItemAction_REINSTALL"),
    (libdnf.transaction, "TransactionItemAction_REINSTALLED"),
    (libdnf.transaction, "TransactionItemAction_REMOVE"),
    (libdnf.transaction, "TransactionItemAction_UPGRADE"),
    (libdnf.transaction, "TransactionItemAction_UPGRADED"),
    (libdnf.transaction, "TransactionItemReasonToString"),
    (libdnf.transaction, "TransactionItemReason_CLEAN"),
    (libdnf.transaction, "TransactionItemReason_DEPENDENCY"),
    (libdnf.transaction, "TransactionItemReason_GROUP"),
    (libdnf.transaction, "TransactionItemReason_USER"),
    (libdnf.transaction, "TransactionItemReason_WEAK_DEPENDENCY"),
    (libdnf.transaction, "TransactionItemState_DONE"),
    (libdnf.transaction, "TransactionItemState_ERROR"),
    (rpm, "RPMTAG_BUILDHOST"),
    (rpm, "TransactionSet"),
    (rpm, "_RPMVSF_NODIGESTS"),
    (rpm, "_RPMVSF_NOSIGNATURES"),
    (rpm, "addMacro"),
    (rpm, "error"),
    (rpm, "expandMacro"),
    (rpm, "fd"),
]

PACKAGE_FIELDS = (
    "arch baseurl buildtime changelogs conflicts description epoch evr files group license location name "
    "obsoletes packager provides release reponame requires size sourcerpm summary url vendor version evr_cmp evr_gt"
).split()

BASE_METHODS = {
    "_add_repo_to_sack": ["self", "repo"],
    "_get_installonly_query": ["self", "q"],
    "_run_transaction": ["self", "cb"],
    "close": ["self"],
    "do_transaction": ["self", "display"],
    "download_packages": ["self", "pkglist", "progress", "callback_total"],
    "fill_sack": ["self", "load_system_repo", "load_available_repos"],
    "package_install": ["self", "pkg", "strict"],
    "package_remove": ["self", "pkg"],
    "package_signature_check": ["self", "pkg"],
    "read_all_repos": ["self", "opts"],
    "resolve": ["self", "allow_erasing"],
}


@pytest.mark.parametrize(("owner", "name"), NAMES, ids=lambda value: getattr(value, "__name__", value))
def test_name_exists(owner: object, name: str) -> None:
    assert hasattr(owner, name)


@pytest.mark.parametrize("field", PACKAGE_FIELDS)
def test_package_field_exists(field: str) -> None:
    assert hasattr(hawkey.Package, field) or hasattr(dnf.package.Package, field)


@pytest.mark.parametrize("method", BASE_METHODS)
def test_base_method_takes_these_arguments(method: str) -> None:
    assert list(inspect.signature(getattr(dnf.Base, method)).parameters) == BASE_METHODS[method]


@pytest.mark.parametrize("name", ["conf", "goal", "repos", "sack", "transaction"])
def test_base_property_exists(name: str) -> None:
    assert isinstance(getattr(dnf.Base, name), property)


@pytest.mark.parametrize(
    "name",
    "list_downgrades list_erasures list_installs list_obsoleted list_reinstalls list_upgrades "
    "obsoleted_by_package".split(),
)
def test_goal_method_exists(name: str) -> None:
    assert hasattr(hawkey.Goal, name)


@pytest.mark.parametrize("name", "metalink mirrorlist baseurl gpgkey gpgcheck enabled metadata".split())
def test_repository_option_exists(name: str) -> None:
    repo = dnf.repo.Repo("x", dnf.conf.Conf())
    assert hasattr(repo, name)
    assert hasattr(repo._repo, "getCachedir") and hasattr(repo._repo, "setSyncStrategy")


@pytest.mark.parametrize(
    "name",
    "allow_vendor_change cachedir deltarpm exit_on_lock installroot logdir obsoletes persistdir reposdir tsflags "
    "varsdir".split(),
)
def test_main_option_exists(name: str) -> None:
    assert dnf.conf.Conf()._has_option(name)


@pytest.mark.parametrize("method", ["progress", "scriptout", "error"])
def test_display_is_called_by_these_names(method: str) -> None:
    arguments = list(inspect.signature(getattr(dnf.yum.rpmtrans.TransactionDisplay, method)).parameters)
    assert arguments == {
        "progress": ["self", "package", "action", "ti_done", "ti_total", "ts_done", "ts_total"],
        "scriptout": ["self", "msgs"],
        "error": ["self", "message"],
    }[method]


def test_download_progress_is_called_by_these_names() -> None:
    progress = dnf.callback.DownloadProgress
    assert list(inspect.signature(progress.start).parameters)[:3] == ["self", "total_files", "total_size"]
    assert list(inspect.signature(progress.progress).parameters) == ["self", "payload", "done"]
    assert list(inspect.signature(progress.end).parameters) == ["self", "payload", "status", "msg"]


def test_filters_exist() -> None:
    sack = hawkey.Sack()
    query = hawkey.Query(sack)
    for name in ("latest_per_arch_by_priority", "upgrades_by_priority", "upgrades", "latest_per_arch"):
        assert list(query.filter(**{name: True})) == []
    for name in ("obsoletes_by_priority", "obsoletes", "pkg", "pkg__neq"):
        assert list(query.filter(**{name: query})) == []


def test_excludes_can_be_taken_back() -> None:
    sack = hawkey.Sack()
    for method in (sack.remove_excludes, sack.add_includes):
        method(hawkey.Query(sack))


def test_loggers_are_named_so() -> None:
    assert dnf.util.logger.name == "dnf"
    assert dnf.yum.rpmtrans.LoggingTransactionDisplay().rpm_logger.name == "dnf.rpm"
    assert dnf.yum.rpmtrans.LoggingTransactionDisplay().rpm_logger.parent is logging.getLogger("dnf")
