<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Advisories</name>
    <message>
        <source>Security</source>
        <translation>セキュリティー</translation>
    </message>
    <message>
        <source>Bug fix</source>
        <translation>バグ修正</translation>
    </message>
    <message>
        <source>Enhancement</source>
        <translation>機能強化</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>新規パッケージ</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>緊急</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>重要</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
</context>
<context>
    <name>Advisories::Model</name>
    <message>
        <source>Open</source>
        <translation>未適用</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>適用済み</translation>
    </message>
    <message>
        <source>Whether a newer version of an installed package is advised</source>
        <translation>インストール済みパッケージの新しいバージョンが勧められているかどうか</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>What the advisory is about</source>
        <translation>アドバイザリの種類</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>How grave it is, as the repository words it</source>
        <translation>リポジトリーの言う重大度</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>Name of the advisory</source>
        <translation>アドバイザリの名前</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>When the advisory was issued</source>
        <translation>アドバイザリの発行日</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>発行日</translation>
    </message>
    <message>
        <source>How many versions of packages it names</source>
        <translation>挙げているパッケージのバージョンの数</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>What it says in short</source>
        <translation>要約</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Known vulnerabilities that it is about</source>
        <translation>対象となる既知の脆弱性</translation>
    </message>
    <message>
        <source>CVEs</source>
        <translation>CVE</translation>
    </message>
</context>
<context>
    <name>Advisories::PackagesModel</name>
    <message>
        <source>Open</source>
        <translation>未適用</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未インストール</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>適用済み</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>パッケージの名前</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Version that the advisory names</source>
        <translation>アドバイザリが挙げるバージョン</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Version that is installed</source>
        <translation>インストールされているバージョン</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>パッケージのアーキテクチャー</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>アーキテクチャー</translation>
    </message>
    <message>
        <source>Whether what is installed is older</source>
        <translation>インストール済みのものが古いかどうか</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>Advisories::Reader</name>
    <message>
        <source>Unable to read the advisories</source>
        <translation>アドバイザリを読み取れません</translation>
    </message>
</context>
<context>
    <name>Advisories::Window</name>
    <message>
        <source>Advisories</source>
        <translation>アドバイザリ</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>使用中のリポジトリーのメタデータにアドバイザリはありません。</translation>
    </message>
    <message>
        <source>No advisory is about an installed package.</source>
        <translation>インストール済みパッケージに関するアドバイザリはありません。</translation>
    </message>
    <message>
        <source>No advisory fits what is to be shown.</source>
        <translation>表示の条件に合うアドバイザリはありません。</translation>
    </message>
    <message>
        <source>Advisories about installed packages, the latest first</source>
        <translation>インストール済みパッケージに関するアドバイザリ (新しい順)</translation>
    </message>
    <message>
        <source>Open Security Advisories</source>
        <translation>未適用のセキュリティーアドバイザリ</translation>
    </message>
    <message>
        <source>Open Advisories</source>
        <translation>未適用のアドバイザリ</translation>
    </message>
    <message>
        <source>All Advisories</source>
        <translation>すべてのアドバイザリ</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Open is an advisory that names a newer version of an installed package</source>
        <translation>未適用とは、インストール済みパッケージの新しいバージョンを挙げているアドバイザリです</translation>
    </message>
    <message>
        <source>part of an identifier, a title or a CVE</source>
        <translation>識別子・タイトル・CVE の一部</translation>
    </message>
    <message>
        <source>Shows only the advisories with this text in their identifier, title or CVEs</source>
        <translation>識別子・タイトル・CVE にこのテキストを含むアドバイザリだけを表示します</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>アドバイザリ</translation>
    </message>
    <message>
        <source>The chosen advisory</source>
        <translation>選んだアドバイザリ</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>Packages that the chosen advisory names</source>
        <translation>選んだアドバイザリが挙げるパッケージ</translation>
    </message>
    <message>
        <source>&amp;Mark Its Updates</source>
        <translation>更新に印を付ける(&amp;M)</translation>
    </message>
    <message>
        <source>Marks the packages of the chosen advisory for an update</source>
        <translation>選んだアドバイザリのパッケージに更新の印を付けます</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the advisories</source>
        <translation>アドバイザリを閉じます</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>#fffacd</source>
        <translation>#fffacd</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blue</translation>
    </message>
    <message>
        <source>red</source>
        <translation>red</translation>
    </message>
    <message>
        <source>#ffa9b8</source>
        <translation>#ffa9b8</translation>
    </message>
    <message>
        <source>darkorange</source>
        <translation>darkorange</translation>
    </message>
    <message>
        <source>#8b5a2b</source>
        <translation>#8b5a2b</translation>
    </message>
    <message>
        <source>#ffbd94</source>
        <translation>#ffbd94</translation>
    </message>
    <message>
        <source>green</source>
        <translation>green</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>DetailsModel</name>
    <message>
        <source>What happens to the package</source>
        <translation>このパッケージに対する操作</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>パッケージの名前</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Installed version, and the version that takes its place</source>
        <translation>インストール済みのバージョンと、それに置き換わるバージョン</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>パッケージのアーキテクチャ</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>アーキテクチャ</translation>
    </message>
    <message>
        <source>Where the package comes from</source>
        <translation>パッケージの入手元</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>リポジトリ</translation>
    </message>
    <message>
        <source>What is downloaded; of a package that goes, what it takes on the disk</source>
        <translation>ダウンロードする量。削除されるパッケージではディスク上の使用量</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Why the package is part of the transaction</source>
        <translation>このパッケージがトランザクションに含まれる理由</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>ダウングレード</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>再インストール</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>マークあり</translation>
    </message>
    <message>
        <source>required by %1</source>
        <translation>%1 が必要とする</translation>
    </message>
    <message>
        <source>recommended by %1</source>
        <translation>%1 が推奨</translation>
    </message>
    <message>
        <source>goes together with %1</source>
        <translation>%1 に伴う</translation>
    </message>
    <message>
        <source>needs %1</source>
        <translation>%1 に依存</translation>
    </message>
    <message>
        <source>replaced by %1</source>
        <translation>%1 に置き換え</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>不要になった</translation>
    </message>
    <message>
        <source>to resolve dependencies</source>
        <translation>依存関係の解決のため</translation>
    </message>
    <message>
        <source>%1; replaces %2</source>
        <translation>%1、%2 を置き換え</translation>
    </message>
    <message>
        <source>Removed without being marked: %1</source>
        <translation>マークなしで削除: %1</translation>
    </message>
    <message>
        <source>Protected, and goes all the same: %1</source>
        <translation>保護されているが削除: %1</translation>
    </message>
    <message>
        <source>The running kernel goes: %1</source>
        <translation>実行中のカーネルを削除: %1</translation>
    </message>
    <message>
        <source>Older than the installed version: %1</source>
        <translation>インストール済みより古いバージョン: %1</translation>
    </message>
    <message>
        <source>Signature not checked, by the configuration of the repository: %1</source>
        <translation>リポジトリの設定により署名を検証しない: %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 件</translation>
    </message>
    <message>
        <source>one version too many</source>
        <translation>保持するバージョン数を超過</translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Totals</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>What you may not expect of this transaction</source>
        <translation>このトランザクションで予期しない可能性のあること</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To download: %1</source>
        <translation>ダウンロード: %1</translation>
    </message>
    <message>
        <source>On the disk: no change</source>
        <translation>ディスク: 変化なし</translation>
    </message>
    <message>
        <source>On the disk: %1 more</source>
        <translation>ディスク: %1 増加</translation>
    </message>
    <message>
        <source>On the disk: %1 less</source>
        <translation>ディスク: %1 減少</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>The packages of the transaction, and why each is part of it</source>
        <translation>トランザクションのパッケージと、それぞれが含まれる理由</translation>
    </message>
    <message>
        <source>Load &amp;Changes</source>
        <translation>変更点を読み込む(&amp;C)</translation>
    </message>
    <message>
        <source>Reads the changelogs of the repositories, which may have to be downloaded</source>
        <translation>リポジトリの変更ログを読み込む。ダウンロードが必要な場合もある</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更点</translation>
    </message>
    <message>
        <source>What has changed since the installed versions</source>
        <translation>インストール済みバージョンからの変更点</translation>
    </message>
    <message>
        <source>The changelogs are being read…</source>
        <translation>変更ログを読み込んでいます…</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new of %1.</source>
        <translation>%1 について変更ログに新しい記載はありません。</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new.</source>
        <translation>変更ログに新しい記載はありません。</translation>
    </message>
</context>
<context>
    <name>EmptyTableNote</name>
    <message>
        <source>There are no packages.</source>
        <translation>パッケージがありません。</translation>
    </message>
    <message>
        <source>Nothing matches %1 in %2.</source>
        <extracomment>%1 is an expression, %2 one of the choices beside it, such as &quot;View All&quot;</extracomment>
        <translation>「%2」に %1 と一致するものはありません。</translation>
    </message>
    <message>
        <source>There is nothing in %1.</source>
        <extracomment>%1 is one of the choices above the table, such as &quot;View Updatable&quot;</extracomment>
        <translation>「%1」には何もありません。</translation>
    </message>
    <message>
        <source>%1 match in %2</source>
        <extracomment>%1 is a number of rows, %2 is &quot;View All&quot;</extracomment>
        <translation>「%2」で %1 件が一致</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>「%2」に %1 件</translation>
    </message>
    <message>
        <source>%1 match among groups</source>
        <translation>グループで %1 件が一致</translation>
    </message>
    <message>
        <source>%1 among groups</source>
        <translation>グループに %1 件</translation>
    </message>
    <message>
        <source>%1 match without case</source>
        <translation>大文字小文字を区別しないと %1 件が一致</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>式を消去します</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>使用中のリポジトリーのメタデータにアドバイザリはありません。</translation>
    </message>
</context>
<context>
    <name>Execute</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>fork() failed; errno = %1 (%2)</source>
        <translation>fork() に失敗しました; errno = %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Helvetica</source>
        <translation>Helvetica</translation>
    </message>
    <message>
        <source>Courier</source>
        <translation>Courier</translation>
    </message>
</context>
<context>
    <name>HProgressBar</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Downgraded</source>
        <translation>ダウングレード</translation>
    </message>
    <message>
        <source>Reinstalled</source>
        <translation>再インストール</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>廃止</translation>
    </message>
    <message>
        <source>Reason changed</source>
        <translation>理由を変更</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>user</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>dependency</source>
        <translation>依存関係</translation>
    </message>
    <message>
        <source>weak dependency</source>
        <translation>弱い依存関係</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>不要になった</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>別のプログラム</translation>
    </message>
    <message>
        <source>Groups: %1</source>
        <translation>グループ: %1</translation>
    </message>
</context>
<context>
    <name>History::Model</name>
    <message>
        <source>Number of the transaction, as the package library counts</source>
        <translation>パッケージライブラリーが数えるトランザクションの番号</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>When the transaction began</source>
        <translation>トランザクションが始まった時刻</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Who had logged in</source>
        <translation>ログインしていた人</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>What came of the transaction</source>
        <translation>トランザクションの結果</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>What was done to how many packages and groups</source>
        <translation>いくつのパッケージとグループに何をしたか</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>Command line of the program that did it</source>
        <translation>実行したプログラムのコマンドライン</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>What the user has noted</source>
        <translation>ユーザーのメモ</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
</context>
<context>
    <name>History::PackagesModel</name>
    <message>
        <source>%1: failed</source>
        <translation>%1: 失敗</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>グループ %1</translation>
    </message>
    <message>
        <source>What was done to the package</source>
        <translation>パッケージに対して行われたこと</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>パッケージの名前</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Version before, and the version that took its place</source>
        <translation>以前のバージョンと、それに代わったバージョン</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>パッケージのアーキテクチャー</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>アーキテクチャー</translation>
    </message>
    <message>
        <source>Where the package came from</source>
        <translation>パッケージの取得元</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>リポジトリー</translation>
    </message>
    <message>
        <source>Why the package was installed</source>
        <translation>パッケージがインストールされた理由</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
</context>
<context>
    <name>History::Records</name>
    <message>
        <source>Unable to read the history of transactions</source>
        <translation>トランザクションの履歴を読み取れません</translation>
    </message>
</context>
<context>
    <name>History::Window</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>No transaction is known.</source>
        <translation>トランザクションはありません。</translation>
    </message>
    <message>
        <source>No transaction fits the search.</source>
        <translation>検索に合うトランザクションはありません。</translation>
    </message>
    <message>
        <source>Transaction %1: %2</source>
        <translation>トランザクション %1: %2</translation>
    </message>
    <message>
        <source>Begun: %1</source>
        <translation>開始: %1</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 から %2 まで</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>ユーザー: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>コマンド: %1</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>コメント: %1</translation>
    </message>
    <message>
        <source>The scripts of the packages wrote nothing.</source>
        <translation>パッケージのスクリプトは何も出力しませんでした。</translation>
    </message>
    <message>
        <source>The package library doesn&apos;t keep what scripts of packages write.</source>
        <translation>このパッケージライブラリーはパッケージのスクリプトの出力を保存しません。</translation>
    </message>
    <message>
        <source>The helper script in use is too old for changes by the history</source>
        <translation>使用中の補助スクリプトは古く、履歴による変更ができません</translation>
    </message>
    <message>
        <source>Do the opposite of the chosen transaction</source>
        <translation>選んだトランザクションの逆を行います</translation>
    </message>
    <message>
        <source>Do the chosen transaction once more</source>
        <translation>選んだトランザクションをもう一度行います</translation>
    </message>
    <message>
        <source>Undo all transactions behind the chosen one</source>
        <translation>選んだものより後のすべてのトランザクションを取り消します</translation>
    </message>
    <message>
        <source>Not all of it can be done:</source>
        <translation>次のことはできません:</translation>
    </message>
    <message>
        <source>Go on with the rest? What exactly is done is shown before, and asked once more.</source>
        <translation>残りを続けますか? 実際に行う内容は事前に表示され、もう一度確認されます。</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>All transactions, the latest first</source>
        <translation>すべてのトランザクション (新しい順)</translation>
    </message>
    <message>
        <source>part of a name, or a pattern such as kernel*</source>
        <translation>名前の一部、または kernel* のようなパターン</translation>
    </message>
    <message>
        <source>Shows only the transactions about packages whose name, version and
architecture hold this text or, with * or ?, match it</source>
        <translation>名前・バージョン・アーキテクチャーがこのテキストを含む、
または * や ? でこれに合うパッケージのトランザクションだけを表示します</translation>
    </message>
    <message>
        <source>Pac&amp;kage:</source>
        <translation>パッケージ(&amp;K):</translation>
    </message>
    <message>
        <source>The chosen transaction</source>
        <translation>選んだトランザクション</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>What the chosen transaction did</source>
        <translation>選んだトランザクションが行ったこと</translation>
    </message>
    <message>
        <source>Script Output</source>
        <translation>スクリプトの出力</translation>
    </message>
    <message>
        <source>What scripts of the packages wrote during the transaction</source>
        <translation>トランザクション中にパッケージのスクリプトが出力したもの</translation>
    </message>
    <message>
        <source>&amp;Packages</source>
        <translation>パッケージ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Script Output</source>
        <translation>スクリプトの出力(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Undo This</source>
        <translation>これを取り消す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Roll Back To Here</source>
        <translation>ここまで戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>やり直す(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;This Transaction...</source>
        <translation>このトランザクション(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;All Transactions...</source>
        <translation>すべてのトランザクション(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>Write transactions into a file, as text or JSON</source>
        <translation>トランザクションをテキストまたは JSON でファイルに書き込みます</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the history</source>
        <translation>履歴を閉じます</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>トランザクション</translation>
    </message>
</context>
<context>
    <name>KeyDialog</name>
    <message>
        <source>Import Key</source>
        <translation>鍵をインポート</translation>
    </message>
    <message>
        <source>Fetch Key</source>
        <translation>鍵を取得</translation>
    </message>
    <message>
        <source>Is this key to be trusted? Everything that it has signed is accepted from then on. Import it only if you know its fingerprint from elsewhere, such as its owner&apos;s pages.</source>
        <translation>この鍵を信頼しますか? 以後、この鍵で署名されたものはすべて受け入れられます。所有者のページなど、別の経路でフィンガープリントを確認できる場合にだけインポートしてください。</translation>
    </message>
    <message>
        <source>A key that is missing is to be fetched from the address below. Nothing is trusted yet: you see the key before it is imported.</source>
        <translation>不足している鍵を下のアドレスから取得します。まだ何も信頼されません。インポートの前に鍵の内容が表示されます。</translation>
    </message>
    <message>
        <source>User ID:</source>
        <translation>ユーザー ID:</translation>
    </message>
    <message>
        <source>Fingerprint:</source>
        <translation>フィンガープリント:</translation>
    </message>
    <message>
        <source>Key ID:</source>
        <translation>鍵 ID:</translation>
    </message>
    <message>
        <source>%1 (short: %2)</source>
        <translation>%1 (短縮形: %2)</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>作成日:</translation>
    </message>
    <message>
        <source>Expires:</source>
        <translation>有効期限:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>経路:</translation>
    </message>
    <message>
        <source>a file of this system</source>
        <translation>このシステムのファイル</translation>
    </message>
    <message>
        <source>https: encrypted, from a server that has proved its name</source>
        <translation>https: 暗号化されており、サーバー名も確認済み</translation>
    </message>
    <message>
        <source>%1: not encrypted. Anybody on the way may have exchanged the key.</source>
        <translation>%1: 暗号化されていません。途中の誰かが鍵をすり替えている可能性があります。</translation>
    </message>
    <message>
        <source>Repository:</source>
        <translation>リポジトリ:</translation>
    </message>
    <message>
        <source>Signed with it:</source>
        <translation>署名対象:</translation>
    </message>
    <message>
        <source>the metadata of the repository</source>
        <translation>リポジトリのメタデータ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>https: encrypted, but any server may answer, since sslverify is switched off. Anybody on the way may have exchanged the key.</source>
        <translation>https: 暗号化されていますが、sslverify が無効なため、どのサーバーでも応答できます。経路上の誰かが鍵をすり替えている可能性があります。</translation>
    </message>
</context>
<context>
    <name>Log::Window</name>
    <message>
        <source>&lt;font color=&quot;%1&quot;&gt;</source>
        <translation>&lt;font color=&quot;%1&quot;&gt;</translation>
    </message>
    <message>
        <source>&lt;/font&gt;</source>
        <translation>&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font&gt;</source>
        <translation>&lt;font&gt;</translation>
    </message>
    <message>
        <source>&lt;h2&gt;&lt;font color=&quot;%1&quot;&gt;</source>
        <translation>&lt;h2&gt;&lt;font color=&quot;%1&quot;&gt;</translation>
    </message>
    <message>
        <source>&lt;/font&gt;&lt;/h2&gt;</source>
        <translation>&lt;/font&gt;&lt;/h2&gt;</translation>
    </message>
    <message>
        <source>VEM Log</source>
        <translation>VEM ログ</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation>詳細レベル</translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation>ここで指定したレベルより詳細なログメッセージは表示しません。
レベルが高いほど詳しく表示します。
有効な範囲は 0 ～ %1 です。
デフォルトは %2 です。
高いレベルにはデバッグ情報が含まれます。
yum の debuglevel (-d) オプションに相当します。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation>ログウィンドウを閉じます</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation>ローカルの %1 にキャッシュされた RPM パッケージヘッダーを消去します</translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation>ローカルの %1 にキャッシュされた RPM パッケージを消去します
(ディスクの空き容量を増やすのに役立ちます)</translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation>ローカルの %1 にキャッシュされた XML メタデータを消去します
(「pickle データを消去」と併用すると、利用可能なパッケージの
 一覧を新しくダウンロードし直すことができます)</translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation>ローカルの %1 にキャッシュされた pickle データを消去します
(「XML メタデータを消去」と併用すると、利用可能なパッケージの
 一覧を新しくダウンロードし直すことができます)</translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation>ローカルの %1 にキャッシュされたデータをすべて消去します</translation>
    </message>
    <message>
        <source>About</source>
        <translation>VEM について</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation>パッケージのすべてのフィールドと照合する正規表現</translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation>表に表示されているテキストフィールドと照合する、フィルターの正規表現</translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation>左で指定した正規表現で検索します</translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation>左で指定したフィルターを適用します</translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation>正規表現で表のパッケージを選び出す方法を指定します:
	「フィルター」は、表に表示されているテキストフィールドを空白でつないだものと照合します。
	「検索」は、ファイル、変更履歴、要求などの一覧を含むパッケージの全フィールドと
	個別に照合します。フィルターよりかなり時間がかかります。</translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation>%1 (追加データの読み込みが必要です。)</translation>
    </message>
    <message>
        <source>VEM - %1</source>
        <translation>VEM - %1</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>プログラム(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>ログ(&amp;L)</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation>リポジトリ(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation>設定を編集(&amp;E)</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Cache</source>
        <translation>キャッシュ(&amp;C)</translation>
    </message>
    <message>
        <source>Clean Headers</source>
        <translation>ヘッダーを消去</translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation>パッケージを消去</translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation>XML メタデータを消去</translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation>pickle データを消去</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>すべて消去</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation>マニュアル (HTML)</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation>マニュアル (PDF)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>VEM について(&amp;A)</translation>
    </message>
    <message>
        <source>Filter or Search</source>
        <translation>フィルターまたは検索</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>正規表現</translation>
    </message>
    <message>
        <source>View Updatable</source>
        <translation>更新可能を表示</translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation>インストール可能を表示</translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation>削除可能を表示</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation>更新、インストール、削除のいずれかが可能なパッケージに絞り込むか、
すべてのパッケージを表示します</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation>グループを含める</translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation>フィルターの対象にパッケージグループを含めるかどうか</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation>現在選択しているパッケージの詳しい説明をウィンドウで表示します</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>サイズ調整(&amp;S)</translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation>列とウィンドウの大きさを最適な値に調整します</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>再読み込み(&amp;F)</translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation>インストール済みのパッケージと更新可能なパッケージの一覧を読み込み直します。
リポジトリに新しい更新があるかを確認するときや、手動でパッケージをインストールしたときに使用してください。</translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation>選択項目をインストール/更新に設定(&amp;I)</translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>選択したパッケージのうち、未インストールのものは操作を「インストール」に、
インストール済みで古いものは操作を「更新」に設定します。
操作は自動的には適用されません。</translation>
    </message>
    <message>
        <source>Set &amp;Update of All Out-of-Date</source>
        <translation>古いものをすべて更新に設定(&amp;U)</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>インストール済みで古いパッケージすべての操作を「更新」に設定します。
操作は自動的には適用されません。</translation>
    </message>
    <message>
        <source>&amp;Clear Actions</source>
        <translation>操作をクリア(&amp;L)</translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation>指定したすべての操作 (更新、インストール、削除) をクリアします</translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation>操作を適用(&amp;A)</translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation>指定した操作 (更新、インストール、削除) を適用します</translation>
    </message>
    <message>
        <source>Item Progress</source>
        <translation>項目の進捗</translation>
    </message>
    <message>
        <source>Total Progress</source>
        <translation>全体の進捗</translation>
    </message>
    <message>
        <source>VEM</source>
        <translation>VEM</translation>
    </message>
    <message>
        <source>Unfinished Transaction</source>
        <translation>未完了のトランザクション</translation>
    </message>
    <message>
        <source>Shall the older versions be removed? What exactly is done is shown before, and asked once more.</source>
        <translation>古いバージョンを削除しますか? 実行する内容は事前に表示され、もう一度確認されます。</translation>
    </message>
    <message>
        <source>&amp;Remove Older Versions</source>
        <translation>古いバージョンを削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Leave Them</source>
        <translation>残す(&amp;L)</translation>
    </message>
    <message>
        <source>Not everything that is configured could be used, so the table may not show what it should:</source>
        <translation>設定されているもののうち使用できないものがあったため、表の内容が本来のものと異なる可能性があります:</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>不完全な表</translation>
    </message>
    <message>
        <source>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM (Verified Estate Manager) は、システムにインストールされている rpm パッケージを変更するためのグラフィカルユーザーインターフェースです。&lt;/p&gt;&lt;p&gt;主な機能:&lt;p&gt;&lt;ul&gt;&lt;li&gt;yum パッケージリポジトリからダウンロードして、新しいパッケージのインストールや既存のパッケージの更新を行う&lt;/li&gt;&lt;li&gt;既存のパッケージを削除する&lt;/li&gt;&lt;li&gt;新しいパッケージや更新されたパッケージの取得元となるリポジトリを設定する&lt;/li&gt;&lt;li&gt;インストール済みのパッケージや、インストールまたは更新が可能なパッケージを調べる&lt;/li&gt;&lt;li&gt;パッケージグループのインストール、更新、削除を行う&lt;/li&gt;&lt;li&gt;パッケージスイートのインストールや更新を行う&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Package library: %1&lt;/p&gt;</source>
        <translation>&lt;p&gt;パッケージライブラリ: %1&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Web page: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;Web ページ: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What the program remembers was damaged; it has been put aside as %1</source>
        <translation>プログラムの記憶が破損していたため、%1 として取り置きました</translation>
    </message>
    <message>
        <source>Actions that are gone with their rows: %1</source>
        <translation>行とともになくなった操作: %1</translation>
    </message>
    <message>
        <source>View Marked</source>
        <translation>指定済みを表示</translation>
    </message>
    <message>
        <source>&amp;Reset Window</source>
        <translation>ウィンドウを初期状態に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;election</source>
        <translation>選択(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>Packages are being installed, updated or removed.
That goes on to its end, and the program ends behind it.</source>
        <translation>パッケージのインストール、更新、または削除を行っています。
この処理は最後まで続き、その後プログラムは終了します。</translation>
    </message>
    <message>
        <source>&amp;Open Package Files...</source>
        <translation>パッケージファイルを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Shows packages of .rpm files and of https addresses in the table, marked for installation</source>
        <translation>.rpm ファイルや https アドレスのパッケージを、インストールの印を付けて表に表示します</translation>
    </message>
    <message>
        <source>The package library in use can&apos;t open package files here</source>
        <translation>使用中のパッケージライブラリは、ここではパッケージファイルを開けません</translation>
    </message>
    <message>
        <source>The search was stopped: only what it had found by then is shown</source>
        <translation>検索は中止されました。それまでに見つかったものだけが表示されています</translation>
    </message>
    <message>
        <source>An answer is waited for.</source>
        <translation>応答を待っています。</translation>
    </message>
    <message>
        <source>All actions have been applied.</source>
        <translation>すべてのアクションを適用しました。</translation>
    </message>
    <message>
        <source>Not all actions have been applied.</source>
        <translation>一部のアクションは適用されませんでした。</translation>
    </message>
    <message>
        <source>Open Log With Each &amp;Apply</source>
        <translation>適用のたびにログを開く(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>履歴(&amp;H)</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Shows what was installed, updated and removed, and takes it back</source>
        <translation>インストール・更新・削除したものを表示し、元に戻します</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell the history</source>
        <translation>使用中の補助スクリプトは古く、履歴を伝えられません</translation>
    </message>
    <message>
        <source>A&amp;dvisories</source>
        <translation>アドバイザリ(&amp;D)</translation>
    </message>
    <message>
        <source>Shows what the repositories advise about installed packages, security first of all</source>
        <translation>インストール済みパッケージに関するリポジトリーの勧告を表示します (特にセキュリティー)</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell of advisories</source>
        <translation>使用中の補助スクリプトは古く、アドバイザリを伝えられません</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>View Security Updates</source>
        <translation>セキュリティー更新を表示</translation>
    </message>
    <message>
        <source>Set Update of &amp;Security Fixes</source>
        <translation>セキュリティー修正を更新に設定(&amp;S)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Shift+U</translation>
    </message>
    <message>
        <source>Set Update of Security Fixes</source>
        <translation>セキュリティー修正を更新に設定</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>使用中のリポジトリーのメタデータにアドバイザリはありません。</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which have a security update to Update.
Does not Apply Actions automatically.</source>
        <translation>セキュリティー更新のあるパッケージすべての操作を「更新」に設定します。
操作は自動的には適用されません。</translation>
    </message>
    <message>
        <source>Res&amp;tarts</source>
        <translation>再起動(&amp;T)</translation>
    </message>
    <message>
        <source>Shows what still works with files that have been replaced, and restarts services</source>
        <translation>置き換えられたファイルをまだ使用しているものを表示し、サービスを再起動します</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell what is to be restarted</source>
        <translation>使用中のヘルパースクリプトは古すぎて、再起動すべきものを示せません</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
</context>
<context>
    <name>PackageFilesDialog</name>
    <message>
        <source>Open Package Files</source>
        <translation>パッケージファイルを開く</translation>
    </message>
    <message>
        <source>&amp;Files (.rpm) and addresses (https), one a line:</source>
        <translation>ファイル (.rpm) とアドレス (https)、1 行に 1 つ(&amp;F):</translation>
    </message>
    <message>
        <source>Package files</source>
        <translation>パッケージファイル</translation>
    </message>
    <message>
        <source>Paths of .rpm files and https addresses, one a line</source>
        <translation>.rpm ファイルのパスと https アドレス、1 行に 1 つ</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Choose .rpm files of this machine</source>
        <translation>このマシンの .rpm ファイルを選びます</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Show the packages in the table, marked for installation</source>
        <translation>パッケージを、インストールの印を付けて表に表示します</translation>
    </message>
    <message>
        <source>Package files (*.rpm);;All files (*)</source>
        <translation>パッケージファイル (*.rpm);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>This is no readable .rpm file and no https address: %1</source>
        <translation>読み取れる .rpm ファイルでも https アドレスでもありません: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>PackageTable::ActionContextMenu</name>
    <message>
        <source>&amp;Update</source>
        <translation>更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation>操作なし(&amp;N)</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>VEM Package Description</source>
        <translation>VEM パッケージの詳細</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Go back to the package described before</source>
        <translation>直前に説明していたパッケージに戻る</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Area</name>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>リポジトリ</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Change Log</source>
        <translation>変更履歴</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (must load extra data)</source>
        <translation>%1 (追加データの読み込みが必要)</translation>
    </message>
    <message>
        <source>%1 %2 File List</source>
        <translation>%1 %2 のファイル一覧</translation>
    </message>
    <message>
        <source>%1 %2 Change Log</source>
        <translation>%1 %2 の変更履歴</translation>
    </message>
    <message>
        <source>Required Groups</source>
        <translation>必須グループ</translation>
    </message>
    <message>
        <source>Default MetaPkgs</source>
        <translation>デフォルトのメタパッケージ</translation>
    </message>
    <message>
        <source>Optional MetaPkgs</source>
        <translation>オプションのメタパッケージ</translation>
    </message>
    <message>
        <source>Mandatory Packages</source>
        <translation>必須パッケージ</translation>
    </message>
    <message>
        <source>Default Packages</source>
        <translation>デフォルトのパッケージ</translation>
    </message>
    <message>
        <source>Optional Packages</source>
        <translation>オプションのパッケージ</translation>
    </message>
    <message>
        <source>Conditional Packages</source>
        <translation>条件付きパッケージ</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>アーキテクチャ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>ビルド日時</translation>
    </message>
    <message>
        <source>Build Host</source>
        <translation>ビルドホスト</translation>
    </message>
    <message>
        <source>Install Time</source>
        <translation>インストール日時</translation>
    </message>
    <message>
        <source>Binary RPM</source>
        <translation>バイナリ RPM</translation>
    </message>
    <message>
        <source>Source RPM</source>
        <translation>ソース RPM</translation>
    </message>
    <message>
        <source>License</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Packager</source>
        <translation>パッケージ作成者</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Relocations</source>
        <translation>再配置</translation>
    </message>
    <message>
        <source>Provides</source>
        <translation>提供</translation>
    </message>
    <message>
        <source>Requires</source>
        <translation>要求</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>競合</translation>
    </message>
    <message>
        <source>Obsoletes</source>
        <translation>廃止</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::RepoDialog</name>
    <message>
        <source>VEM Repository Description</source>
        <translation>VEM リポジトリの詳細</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>リポジトリを閲覧</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>選択したリポジトリに指定されている最初の URL を外部の Web ブラウザーで閲覧します</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>ミラーリストの URL</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Section</name>
    <message>
        <source>Required By</source>
        <translation>このパッケージを必要とするもの</translation>
    </message>
    <message>
        <source>Which packages require this one</source>
        <translation>どのパッケージがこのパッケージを必要とするか</translation>
    </message>
    <message>
        <source>Recommended By</source>
        <translation>このパッケージを推奨するもの</translation>
    </message>
    <message>
        <source>Which packages recommend this one</source>
        <translation>どのパッケージがこのパッケージを推奨するか</translation>
    </message>
    <message>
        <source>Provides What It Requires</source>
        <translation>必要なものを提供するパッケージ</translation>
    </message>
    <message>
        <source>Which packages have what this one requires</source>
        <translation>このパッケージが必要とするものをどのパッケージが持つか</translation>
    </message>
    <message>
        <source>Why Installed</source>
        <translation>インストールの理由</translation>
    </message>
    <message>
        <source>Who wanted this package, and which transaction installed it</source>
        <translation>誰がこのパッケージを求め、どのトランザクションがインストールしたか</translation>
    </message>
    <message>
        <source>Advisories</source>
        <translation>アドバイザリー</translation>
    </message>
    <message>
        <source>Which advisories name this package, and whether it has what they advise</source>
        <translation>どのアドバイザリーがこのパッケージを挙げ、その内容が適用済みか</translation>
    </message>
    <message>
        <source>Other Versions</source>
        <translation>他のバージョン</translation>
    </message>
    <message>
        <source>All versions that are installed or that a repository has</source>
        <translation>インストール済み、またはリポジトリーにあるすべてのバージョン</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>These are the first %L1 of %L2.</source>
        <translation>%L2 件中の最初の %L1 件です。</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
</context>
<context>
    <name>PackageTable::ExpressionEdit</name>
    <message>
        <source>Match Case</source>
        <translation>大文字と小文字を区別</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>式を消去します</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Whether capital and small letters differ (%1)</source>
        <translation>大文字と小文字を区別するかどうか (%1)</translation>
    </message>
    <message>
        <source>%1, at letter %2 of the expression: %3</source>
        <extracomment>%1 is what the system&apos;s library says is wrong, %2 the number of the letter, from 1, %3 the letter</extracomment>
        <translation>%1 (式の %2 文字目: %3)</translation>
    </message>
    <message>
        <source>Not Valid</source>
        <translation>無効な式</translation>
    </message>
</context>
<context>
    <name>PackageTable::Header</name>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
</context>
<context>
    <name>PackageTable::Model</name>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Action to be performed on the package, if any: Update, Install, Remove</source>
        <translation>パッケージに対して実行する操作 (更新、インストール、削除)。ない場合もあります</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation>パッケージがインストール済みかどうか、インストール済みの場合は最新かどうかを示します</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation>通常のパッケージ、パッケージスイート、パッケージグループのいずれであるか</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>パッケージの名前</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation>パッケージのバージョンとリリース (バージョン-リリース の形式)。
エポックが 0 でない場合は エポック:バージョン-リリース の形式になります</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>リポジトリ</translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation>パッケージの最新バージョンを入手できるリポジトリ</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>アーキテクチャ</translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation>パッケージの対象アーキテクチャ。アーキテクチャに依存しないパッケージでは &quot;noarch&quot;</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation>パッケージのサイズ</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>ビルド日時</translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation>パッケージが作成された日時</translation>
    </message>
    <message>
        <source>Update package</source>
        <translation>パッケージを更新します</translation>
    </message>
    <message>
        <source>Install package</source>
        <translation>パッケージをインストールします</translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation>パッケージを削除します</translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation>インストール済みの古いバージョンを更新できるパッケージです</translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation>インストール可能なパッケージです</translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation>インストール済みで最新のパッケージです</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>パッケージスイート</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>パッケージグループ</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>通常のパッケージ</translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation>利用可能: %1
</translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation>インストール済み: %1
</translation>
    </message>
    <message>
        <source>
Installed in more than one version: %1</source>
        <translation>
複数のバージョンがインストールされています: %1</translation>
    </message>
    <message>
        <source>Package is available to replace %1</source>
        <translation>%1 を置き換えるパッケージです</translation>
    </message>
    <message>
        <source>Replaces: %1
</source>
        <translation>置き換え対象: %1
</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>What the package is, in one line</source>
        <translation>パッケージの説明 (1 行)</translation>
    </message>
    <message>
        <source>Installed Version</source>
        <translation>インストール済みバージョン</translation>
    </message>
    <message>
        <source>Version and release that is installed, if any</source>
        <translation>インストール済みのバージョンとリリース (ある場合)</translation>
    </message>
    <message>
        <source>Installed Size</source>
        <translation>インストールサイズ</translation>
    </message>
    <message>
        <source>What the package takes on the disk</source>
        <translation>パッケージがディスク上で占める容量</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Kind of software, as the package states it</source>
        <translation>パッケージに記されたソフトウェアの種類</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Terms under which the package may be used and passed on</source>
        <translation>パッケージの使用と再配布の条件</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Who has published the package</source>
        <translation>パッケージの発行元</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Why the package is installed: asked for by the user, by a group, or as a dependency</source>
        <translation>インストールされた理由: ユーザーの要求、グループ、または依存関係</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>アドバイザリ</translation>
    </message>
    <message>
        <source>Advisories that the update carries out, and how grave the gravest one is</source>
        <translation>更新によって反映されるアドバイザリと、その最も高い重大度</translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>リポジトリを閲覧</translation>
    </message>
</context>
<context>
    <name>PackageTable::SelectionActions</name>
    <message>
        <source>Install/Update of Selected: %1</source>
        <extracomment>%1 is a number of packages</extracomment>
        <translation>選択したものをインストール/更新: %1</translation>
    </message>
    <message>
        <source>Remove Selected: %1</source>
        <translation>選択したものを削除: %1</translation>
    </message>
    <message>
        <source>No Action for Selected: %1</source>
        <translation>選択したものは何もしない: %1</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>リポジトリを閲覧</translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Packages</source>
        <translation>パッケージ</translation>
    </message>
</context>
<context>
    <name>QProgressBar</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Relations</name>
    <message>
        <source>Unable to read what is told of other packages</source>
        <translation>他のパッケージについての情報を読み込めません</translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VEM Authentication</source>
        <translation>VEM 認証</translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation>設定されているリポジトリの一部で認証が必要です</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>ミラーリストの URL</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Buffet 認証方式を使うリポジトリの認証名</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Buffet 認証方式を使うリポジトリの認証パスワード</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation>このセッションで無効化</translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation>すべてスキップ</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>すべてに適用</translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation>このホストのすべてに適用</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>RepoBrowse</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation>リポジトリの設定に URL がありません</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Config</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation>(はい)</translation>
    </message>
    <message>
        <source>(No)</source>
        <translation>(いいえ)</translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation>識別子が指定されていません</translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation>URL もミラーリストの URL も指定されていません</translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation>ファイルがどの reposdir ディレクトリにもありません</translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation>ファイル名の末尾が .repo ではありません</translation>
    </message>
    <message>
        <source>No Buffet Authentication Name specified</source>
        <translation>Buffet 認証名が指定されていません</translation>
    </message>
    <message>
        <source>No Buffet Authentication Password specified</source>
        <translation>Buffet 認証パスワードが指定されていません</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>リポジトリの一意の識別子</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>リポジトリの説明</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation>リポジトリの URL の一覧。
複数指定する場合は、すべてが同じ内容のミラーである必要があります。
一部の URL に接続できないときも、ほかの URL を利用できます。</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>ミラーリストの URL</translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation>リポジトリの URL の一覧が書かれたファイルの URL。</translation>
    </message>
    <message>
        <source>Buffet Authentication</source>
        <translation>Buffet 認証</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Buffet 認証方式を使うリポジトリの認証名</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Buffet 認証方式を使うリポジトリの認証パスワード</translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation>リポジトリのオプション</translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation>このリポジトリに対するその他の yum オプション。yum.conf(5) を参照してください</translation>
    </message>
    <message>
        <source>Other Options:</source>
        <translation>その他のオプション:</translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation>リポジトリを有効にして使用するかどうか</translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation>リポジトリのパッケージの GPG 鍵による署名を検証し、真正性を確認するかどうか</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Check GPG Keys</source>
        <translation>GPG 鍵を検証</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation>設定ファイル (上級者向け)</translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation>このリポジトリ設定を書き込む yum 設定ファイルの名前。
空欄の場合は、リポジトリの識別子が使われます</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation>1 つの設定ファイルに複数のリポジトリ設定があるときに、
このリポジトリ設定の順序を決める数値のソートキー</translation>
    </message>
    <message>
        <source>Sort Position</source>
        <translation>並び順</translation>
    </message>
    <message>
        <source>Line %1 of Other Options would begin another section</source>
        <translation>その他のオプションの %1 行目は別のセクションの始まりになります</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is indented but continues no option</source>
        <translation>その他のオプションの %1 行目は字下げされていますが、続きとなるオプションがありません</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is no option: it lacks &quot;=&quot;</source>
        <translation>その他のオプションの %1 行目はオプションではありません。「=」がありません</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VEM Repository Configuration</source>
        <translation>VEM リポジトリ設定</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation>このリポジトリ設定の変更を元に戻します</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation>このリポジトリ設定の変更を元に戻し、ウィンドウを閉じます</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>すべてのリポジトリ設定の変更を適用し、ウィンドウを閉じます</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>リポジトリを閲覧</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VEM Repository Configuration Editor</source>
        <translation>VEM リポジトリ設定エディター</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>リポジトリを閲覧</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>選択したリポジトリに指定されている最初の URL を外部の Web ブラウザーで閲覧します</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation>選択したリポジトリ設定を編集します</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation>新しいリポジトリ設定を一から作成します</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation>選択したリポジトリを基に新しいリポジトリ設定を作成します</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation>選択したリポジトリ設定を削除します</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>すべてリセット</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation>最後に適用したとき、またはダイアログを開いたとき以降の、すべてのリポジトリ設定の変更を元に戻します</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation>最後に適用したとき、またはダイアログを開いたとき以降の、すべてのリポジトリ設定の変更を元に戻し、ウィンドウを閉じます</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation>すべてのリポジトリ設定の変更を適用します (ウィンドウは閉じません)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>すべてのリポジトリ設定の変更を適用し、ウィンドウを閉じます</translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation>識別子のないリポジトリがあります</translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation>複数のリポジトリの識別子が %1 になっています</translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation>未適用の設定変更があります</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>Sess</source>
        <translation>今回</translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation>このセッションでリポジトリを使用するかどうか。
リポジトリ設定の永続的な「有効」フラグより優先されます。</translation>
    </message>
    <message>
        <source>Perm</source>
        <translation>永続</translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation>リポジトリをデフォルトで有効にする設定になっているかどうか。
個々のセッションでは、これと異なる指定ができます。</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>リポジトリの一意の識別子</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>リポジトリの説明</translation>
    </message>
    <message>
        <source>(new)</source>
        <translation>(新規)</translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation>リポジトリはこのセッションで有効です</translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation>リポジトリはこのセッションで有効ではありません</translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation>リポジトリは有効に設定されています</translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation>リポジトリは有効に設定されていません</translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Repositories</source>
        <translation>リポジトリ</translation>
    </message>
</context>
<context>
    <name>Restarts::FilesModel</name>
    <message>
        <source>Removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>置き換え済み</translation>
    </message>
    <message>
        <source>Path of the file</source>
        <translation>ファイルのパス</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Package that the file belongs to now</source>
        <translation>ファイルが現在属しているパッケージ</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>Whether the file that the process uses is there in another version, or gone</source>
        <translation>プロセスが使用しているファイルが別の版になっているか、なくなっているか</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>Restarts::Model</name>
    <message>
        <source>Unit of systemd that the process belongs to</source>
        <translation>プロセスが属する systemd のユニット</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Command that runs</source>
        <translation>実行中のコマンド</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Number of the process</source>
        <translation>プロセスの番号</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Whose process it is</source>
        <translation>プロセスの所有者</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>When the process began</source>
        <translation>プロセスの開始時刻</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>How many files it uses that have been replaced</source>
        <translation>使用中の置き換え済みファイルの数</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>Restarts::Reader</name>
    <message>
        <source>Unable to find out what is to be restarted</source>
        <translation>再起動すべきものを調べられません</translation>
    </message>
    <message>
        <source>Unable to restart services</source>
        <translation>サービスを再起動できません</translation>
    </message>
</context>
<context>
    <name>Restarts::Window</name>
    <message>
        <source>Restarts</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>The system is to be started anew. Since its start on %1 have been installed:</source>
        <translation>システムの再起動が必要です。%1 の起動以降に次がインストールされました:</translation>
    </message>
    <message>
        <source>The system need not be started anew.</source>
        <translation>システムの再起動は必要ありません。</translation>
    </message>
    <message>
        <source>No process uses files that have been replaced.</source>
        <translation>置き換えられたファイルを使用しているプロセスはありません。</translation>
    </message>
    <message>
        <source>Processes of which nothing could be told for lack of rights: %1</source>
        <translation>権限がないため調べられなかったプロセス: %1</translation>
    </message>
    <message>
        <source>The helper script in use is too old to restart services</source>
        <translation>使用中のヘルパースクリプトは古すぎて、サービスを再起動できません</translation>
    </message>
    <message>
        <source>Restarts the services of these processes, as far as they can be restarted</source>
        <translation>これらのプロセスのサービスを、可能な限り再起動します</translation>
    </message>
    <message>
        <source>These services are restarted, one after the other:</source>
        <translation>次のサービスが順に再起動されます:</translation>
    </message>
    <message>
        <source>What they do is interrupted for that time.</source>
        <translation>その間、サービスの処理は中断されます。</translation>
    </message>
    <message>
        <source>Restart Services</source>
        <translation>サービスの再起動</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>助言</translation>
    </message>
    <message>
        <source>Whether the system is to be started anew</source>
        <translation>システムの再起動が必要かどうか</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Processes that use files which have been replaced</source>
        <translation>置き換えられたファイルを使用しているプロセス</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Replaced files that the chosen process uses</source>
        <translation>選択したプロセスが使用している置き換え済みファイル</translation>
    </message>
    <message>
        <source>&amp;Restart These Services</source>
        <translation>これらのサービスを再起動(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>再確認(&amp;L)</translation>
    </message>
    <message>
        <source>Find out anew what is to be restarted</source>
        <translation>再起動すべきものを調べ直します</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the restarts</source>
        <translation>再起動のウィンドウを閉じます</translation>
    </message>
</context>
<context>
    <name>ScrollableConfirmDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Transaction</source>
        <translation>トランザクション(&amp;T)</translation>
    </message>
</context>
<context>
    <name>ScrollableErrorDialog</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%2 件中 %1 件を表示</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 件を選択</translation>
    </message>
    <message>
        <source>1 install</source>
        <translation>インストール 1 件</translation>
    </message>
    <message>
        <source>%1 installs</source>
        <translation>インストール %1 件</translation>
    </message>
    <message>
        <source>1 update</source>
        <translation>更新 1 件</translation>
    </message>
    <message>
        <source>%1 updates</source>
        <translation>更新 %1 件</translation>
    </message>
    <message>
        <source>1 removal</source>
        <translation>削除 1 件</translation>
    </message>
    <message>
        <source>%1 removals</source>
        <translation>削除 %1 件</translation>
    </message>
    <message>
        <source>%1 marked: %2</source>
        <extracomment>%1 is a number, %2 something like &quot;2 installs, 1 removal&quot;</extracomment>
        <translation>%1 件を指定: %2</translation>
    </message>
    <message>
        <source>%1; %2 to download</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1、ダウンロード %2</translation>
    </message>
    <message>
        <source>Looking only</source>
        <translation>閲覧のみ</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>不完全な表</translation>
    </message>
    <message>
        <source>%1, %2 more on the disk</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1、ディスク使用量 +%2</translation>
    </message>
    <message>
        <source>%1, %2 less on the disk</source>
        <translation>%1、ディスク使用量 -%2</translation>
    </message>
    <message>
        <source>Repositories read just now</source>
        <translation>リポジトリは読み込んだばかりです</translation>
    </message>
    <message>
        <source>Repositories read 1 minute ago</source>
        <translation>リポジトリの読み込み: 1 分前</translation>
    </message>
    <message>
        <source>Repositories read %1 minutes ago</source>
        <translation>リポジトリの読み込み: %1 分前</translation>
    </message>
    <message>
        <source>Repositories read 1 hour ago</source>
        <translation>リポジトリの読み込み: 1 時間前</translation>
    </message>
    <message>
        <source>Repositories read %1 hours ago</source>
        <translation>リポジトリの読み込み: %1 時間前</translation>
    </message>
    <message>
        <source>Repositories read 1 day ago</source>
        <translation>リポジトリの読み込み: 1 日前</translation>
    </message>
    <message>
        <source>Repositories read %1 days ago</source>
        <translation>リポジトリの読み込み: %1 日前</translation>
    </message>
</context>
<context>
    <name>StopButton</name>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Nothing is going on that could be stopped</source>
        <translation>中止できる処理は実行されていません</translation>
    </message>
    <message>
        <source>Stops what is going on; nothing has been changed yet (Escape)</source>
        <translation>実行中の処理を中止します。まだ何も変更されていません (Escape)</translation>
    </message>
    <message>
        <source>It is being stopped</source>
        <translation>中止しています</translation>
    </message>
    <message>
        <source>Packages are being changed: what has begun comes to its end</source>
        <translation>パッケージを変更しています。始まった処理は最後まで行われます</translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>YumConfIO</name>
    <message>
        <source>; errno = %1 (%2).</source>
        <translation>; errno = %1 (%2)</translation>
    </message>
    <message>
        <source>VEM Repository Editor Error</source>
        <translation>VEM リポジトリエディターエラー</translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation>リポジトリエディター</translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation>yum 設定ファイル %1 を読み込めません</translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation>リポジトリ設定ファイル %1 の情報を取得できません (stat)</translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation>リポジトリ設定ファイル %1 を読み込めません</translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation>セクション名の形式が正しくない行: %1</translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation>リポジトリ設定ファイル %1 の読み込み中にエラーが発生しました</translation>
    </message>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation>識別子のないリポジトリがあります。このリポジトリは削除されます。</translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation>複数のリポジトリが同じ識別子を使用しています: %1。各識別子につき 1 つのリポジトリだけが適用されます。</translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation>  続行しますか?</translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation>リポジトリ設定ファイル %1 に書き込めません</translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation>リポジトリ設定ファイル %1 を削除できません (unlink)</translation>
    </message>
    <message>
        <source>subscription-manager generates these files and will write them anew, without the changes made here: %1.  Its own command, &quot;subscription-manager repo-override&quot;, makes lasting ones.</source>
        <translation>次のファイルは subscription-manager が生成するもので、ここでの変更を残さずに書き直されます: %1。変更を残すには、専用のコマンド「subscription-manager repo-override」を使ってください。</translation>
    </message>
    <message>
        <source>%1 is not a regular file.  It is neither read nor changed.</source>
        <translation>%1 は通常のファイルではありません。読み込みも変更も行いません。</translation>
    </message>
    <message>
        <source>The file %1 has not been read, or not to its end.  Nothing is written, so that nothing in it is lost.</source>
        <translation>ファイル %1 は読み込まれていないか、最後まで読み込まれていません。内容が失われないように、何も書き込みません。</translation>
    </message>
    <message>
        <source>
The file is %1.</source>
        <translation>
ファイル: %1</translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Unable to release yum lock</source>
        <translation>yum のロックを解放できません</translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation>初期化できません</translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation>更新可能</translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation>インストール可能</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>インストール済み</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>パッケージスイート</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>パッケージグループ</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>通常のパッケージ</translation>
    </message>
    <message>
        <source>Applying</source>
        <translation>適用中</translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation>依存関係の確認: 全体の進捗</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Error applying changes</source>
        <translation>変更の適用中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Error applying changes: Exiting on Broken Pipe</source>
        <translation>変更の適用中にエラーが発生しました: パイプが切断されたため終了します</translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation>パッケージ %1 を削除リストに追加できません</translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation>パッケージ %1 をインストールリストに追加できません</translation>
    </message>
    <message>
        <source>Unable to find installed version for package update %1</source>
        <translation>更新するパッケージ %1 のインストール済みバージョンが見つかりません</translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation>更新するパッケージ %1 の組に新しいパッケージを追加できません</translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation>更新するパッケージ %1 の組に古いパッケージを追加できません</translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation>パッケージ %1 を更新リストに追加できません</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation>適用: OK</translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation>適用中止: キャンセルされました</translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation>トランザクションの実行: 全体の進捗</translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation>ヘッダーを消去中</translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation>パッケージを消去中</translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation>XML メタデータを消去中</translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation>pickle キャッシュを消去中</translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation>すべて消去中</translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation>初期化</translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation>初期化: 全体の進捗</translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation>yum のロックを取得できません</translation>
    </message>
    <message>
        <source>contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>リポジトリが設定されていません。
「リポジトリ」メニューの「設定を編集」でリポジトリを設定できます。</translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>有効なリポジトリがありません。
「リポジトリ」メニューの「設定を編集」でリポジトリを設定できます。</translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation>リポジトリを読み込み中</translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation>更新可能なパッケージを収集中</translation>
    </message>
    <message>
        <source>Unable to setup transaction</source>
        <translation>トランザクションを準備できません</translation>
    </message>
    <message>
        <source>Unable to collect updatable packages</source>
        <translation>更新可能なパッケージを収集できません</translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation>インストール済みと利用可能なパッケージを収集中</translation>
    </message>
    <message>
        <source>Unable to collect installed and available packages</source>
        <translation>インストール済みと利用可能なパッケージを収集できません</translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation>グループを収集中</translation>
    </message>
    <message>
        <source>Unable to collect groups</source>
        <translation>グループを収集できません</translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation>リポジトリ %1 を準備できません:
%2</translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation>内部エラー: yumIO.collectAll.%1 が見つかりません</translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation>内部エラー: 時刻を解釈できません: %1</translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation>内部エラー: パッケージのサイズを解釈できません: %1</translation>
    </message>
    <message>
        <source>Eb</source>
        <translation>Eb</translation>
    </message>
    <message>
        <source>Pb</source>
        <translation>Pb</translation>
    </message>
    <message>
        <source>Tb</source>
        <translation>Tb</translation>
    </message>
    <message>
        <source>Gb</source>
        <translation>Gb</translation>
    </message>
    <message>
        <source>Mb</source>
        <translation>Mb</translation>
    </message>
    <message>
        <source>Kb</source>
        <translation>Kb</translation>
    </message>
    <message>
        <source>b</source>
        <translation>b</translation>
    </message>
    <message>
        <source>Internal error: yum version not understood: %1</source>
        <translation>内部エラー: yum のバージョンを解釈できません: %1</translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation>ファイル一覧を収集中</translation>
    </message>
    <message>
        <source>file lists</source>
        <translation>ファイル一覧</translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation>ファイル一覧の読み込み: 全体の進捗</translation>
    </message>
    <message>
        <source>Unable to collect file lists</source>
        <translation>ファイル一覧を収集できません</translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation>その他のデータを収集中</translation>
    </message>
    <message>
        <source>miscellaneous data</source>
        <translation>その他のデータ</translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation>その他のデータの読み込み: 全体の進捗</translation>
    </message>
    <message>
        <source>Unable to collect miscellaneous data</source>
        <translation>その他のデータを収集できません</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation>内部エラー: yumIO.%1 の実行に失敗しました</translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation>内部エラー: rpm.%1 が見つかりません</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation>内部エラー: パッケージの prco.%1 が見つかりません</translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation>パッケージはオプションです</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation>パッケージ %1 はグループ %2 に含まれ、このグループは「%3」に指定されています。
そのため、このパッケージは「%4」に指定されることになりますが、
個別に「%5」に指定されています。
どのように処理しますか?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation>パッケージ %1 はグループ %2 に含まれ、このグループは「%3」に指定されています。
そのため、このパッケージは「%4」に指定されることになりますが、
先の競合を解決したときに「%5」に指定されています。
どのように処理しますか?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation>パッケージ %1 はグループ %2 に含まれ、このグループは「%3」に指定されています。
そのため、このパッケージは「%4」に指定されることになりますが、
グループ %5 にも含まれているため「%6」に指定されています。
どのように処理しますか?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation>競合を手動で解決: パッケージ %1 を「%3」に指定します</translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation>グループ %1: パッケージ %2 を「%3」に指定します</translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation>グループ %1: パッケージ %2 はすでに「%3」に指定されています</translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation>グループ %1: パッケージ %2 を「%3」に指定しません。理由: %4</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation>内部エラー: groupInfo.%1 を評価できません</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation>内部エラー: groupInfo.%1[%2] を評価できません</translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation>内部エラー: グループ %1.%2 を評価できません</translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation>合計ダウンロードサイズ: %1
</translation>
    </message>
    <message>
        <source>Internal error: %1 not found
</source>
        <translation>内部エラー: %1 が見つかりません
</translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation>実行するトランザクション:
</translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation>依存関係を解決するために次を実行:
</translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation>その他のトランザクション:
</translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation>廃止</translation>
    </message>
    <message>
        <source>	%1: %2
</source>
        <translation>	%1: %2
</translation>
    </message>
    <message>
        <source>	%1: %2 with %3
</source>
        <translation>	%1: %2 を %3 で置き換え
</translation>
    </message>
    <message>
        <source>%1 %3-%4 (%2)</source>
        <translation>%1 %3-%4 (%2)</translation>
    </message>
    <message>
        <source>%1 %3:%4-%5 (%2)</source>
        <translation>%1 %3:%4-%5 (%2)</translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation> [%1]</translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list</source>
        <translation>リポジトリのミラーリストをダウンロード中 (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list for %2</source>
        <translation>%2 のリポジトリのミラーリストをダウンロード中 (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd</source>
        <translation>リポジトリの repomd をダウンロード中 (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd for %2</source>
        <translation>%2 のリポジトリの repomd をダウンロード中 (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation>リポジトリの%1をダウンロード中</translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation>%2 のリポジトリの%1をダウンロード中</translation>
    </message>
    <message>
        <source>Converting repository %1</source>
        <translation>リポジトリの%1を変換中</translation>
    </message>
    <message>
        <source>Converting repository %1 for %2</source>
        <translation>%2 のリポジトリの%1を変換中</translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation>リポジトリの%1を読み込み中</translation>
    </message>
    <message>
        <source>Reading repository %1 for %2</source>
        <translation>%2 のリポジトリの%1を読み込み中</translation>
    </message>
    <message>
        <source>VEM Yum Error</source>
        <translation>VEM Yum エラー</translation>
    </message>
    <message>
        <source>VEM Yum Warning</source>
        <translation>VEM Yum 警告</translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation>依存関係を解決中</translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation>内部エラー: 予期しない TSINFO: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation>内部エラー: TSINFO に不明なパッケージがあります: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation>内部エラー: すでに最新と思われるパッケージを TSINFO がインストールまたはアップグレードしようとしています: %1</translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation>差分からの RPM の再構築を完了中</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 をダウンロード中</translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation>%1 のヘッダーをダウンロード中</translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation>トランザクションの実行を準備中</translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation>トランザクションのテストを準備中</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>%1 を更新中</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 をインストール中</translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation>更新を完了中: %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>%1 を削除中</translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation>トランザクションのテスト</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation>内部エラー: YumIO::tsCallback の what=%1 を解釈できません。無視します</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation>内部エラー: YumIO::tsEvent の action=%1 を解釈できません。無視します</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation>依存関係により削除済み</translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation>依存関係によりインストール済み</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>更新済み</translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation>依存関係により更新済み</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>廃止済み</translation>
    </message>
    <message>
        <source>VEM Looking Only</source>
        <translation>VEM - 閲覧のみ</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>閲覧(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Loading build hosts: Total Progress</source>
        <translation>ビルドホストの読み込み: 全体の進捗</translation>
    </message>
    <message>
        <source>The transaction goes on; the program ends when it has come to its end.</source>
        <translation>トランザクションは続行されます。プログラムはトランザクションの完了後に終了します。</translation>
    </message>
    <message>
        <source>Unable to see whether a transaction was cut off</source>
        <translation>トランザクションが中断されたかどうかを確認できません</translation>
    </message>
    <message>
        <source>Key %1: OK</source>
        <translation>鍵 %1: OK</translation>
    </message>
    <message>
        <source>Key %1: Canceled</source>
        <translation>鍵 %1: キャンセルされました</translation>
    </message>
    <message>
        <source>Enabling module streams:
</source>
        <translation>モジュールストリームの有効化:
</translation>
    </message>
    <message>
        <source>	%1
</source>
        <translation>	%1
</translation>
    </message>
    <message>
        <source>Unable to read what a column shows</source>
        <translation>列に表示する内容を読み取れません</translation>
    </message>
    <message>
        <source>Unable to read the changes</source>
        <translation>変更点を読み込めません</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>Reading what was fetched before</source>
        <translation>以前に取得したものを読み込みます</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>%1, %2 left</source>
        <translation>%1、残り %2</translation>
    </message>
    <message>
        <source>script of %1</source>
        <translation>%1 のスクリプト</translation>
    </message>
    <message>
        <source>Unable to open package files</source>
        <translation>パッケージファイルを開けません</translation>
    </message>
    <message>
        <source>These package files can&apos;t be used:</source>
        <translation>これらのパッケージファイルは使えません:</translation>
    </message>
</context>
<context>
    <name>YumIOCapturers</name>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation>rpm トランザクションの出力を取得するパイプを開けません</translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation>rpm トランザクションの出力を取得するためのパイプを dup2 で複製できません</translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation>stderr を dup2 で元に戻せません</translation>
    </message>
</context>
</TS>
