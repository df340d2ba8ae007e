<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Advisories</name>
    <message>
        <source>Security</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Bug fix</source>
        <translation>错误修复</translation>
    </message>
    <message>
        <source>Enhancement</source>
        <translation>增强</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>新软件包</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>严重</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>重要</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>中等</translation>
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
        <translation>待处理</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>已应用</translation>
    </message>
    <message>
        <source>Whether a newer version of an installed package is advised</source>
        <translation>是否建议已安装软件包的更新版本</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>What the advisory is about</source>
        <translation>公告的内容</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>How grave it is, as the repository words it</source>
        <translation>软件库所述的严重程度</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>Name of the advisory</source>
        <translation>公告的名称</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>When the advisory was issued</source>
        <translation>公告的发布时间</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>发布</translation>
    </message>
    <message>
        <source>How many versions of packages it names</source>
        <translation>其中列出的软件包版本数</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>软件包</translation>
    </message>
    <message>
        <source>What it says in short</source>
        <translation>简要内容</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Known vulnerabilities that it is about</source>
        <translation>涉及的已知漏洞</translation>
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
        <translation>待处理</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>已应用</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>软件包的名称</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Version that the advisory names</source>
        <translation>公告中列出的版本</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Version that is installed</source>
        <translation>已安装的版本</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>软件包的架构</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Whether what is installed is older</source>
        <translation>已安装的是否较旧</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>Advisories::Reader</name>
    <message>
        <source>Unable to read the advisories</source>
        <translation>无法读取公告</translation>
    </message>
</context>
<context>
    <name>Advisories::Window</name>
    <message>
        <source>Advisories</source>
        <translation>公告</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>所用软件库的元数据中没有公告。</translation>
    </message>
    <message>
        <source>No advisory is about an installed package.</source>
        <translation>没有涉及已安装软件包的公告。</translation>
    </message>
    <message>
        <source>No advisory fits what is to be shown.</source>
        <translation>没有符合显示条件的公告。</translation>
    </message>
    <message>
        <source>Advisories about installed packages, the latest first</source>
        <translation>关于已安装软件包的公告，最新的在前</translation>
    </message>
    <message>
        <source>Open Security Advisories</source>
        <translation>待处理的安全公告</translation>
    </message>
    <message>
        <source>Open Advisories</source>
        <translation>待处理的公告</translation>
    </message>
    <message>
        <source>All Advisories</source>
        <translation>所有公告</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Open is an advisory that names a newer version of an installed package</source>
        <translation>待处理的公告列出了已安装软件包的更新版本</translation>
    </message>
    <message>
        <source>part of an identifier, a title or a CVE</source>
        <translation>标识符、标题或 CVE 的一部分</translation>
    </message>
    <message>
        <source>Shows only the advisories with this text in their identifier, title or CVEs</source>
        <translation>只显示标识符、标题或 CVE 中含此文本的公告</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>查找(&amp;F)：</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>公告</translation>
    </message>
    <message>
        <source>The chosen advisory</source>
        <translation>所选公告</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>软件包</translation>
    </message>
    <message>
        <source>Packages that the chosen advisory names</source>
        <translation>所选公告列出的软件包</translation>
    </message>
    <message>
        <source>&amp;Mark Its Updates</source>
        <translation>标记其更新(&amp;M)</translation>
    </message>
    <message>
        <source>Marks the packages of the chosen advisory for an update</source>
        <translation>将所选公告的软件包标记为更新</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close the advisories</source>
        <translation>关闭公告</translation>
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
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>DetailsModel</name>
    <message>
        <source>What happens to the package</source>
        <translation>对软件包执行的操作</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>软件包名称</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Installed version, and the version that takes its place</source>
        <translation>已安装的版本，以及取代它的版本</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>软件包的架构</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Where the package comes from</source>
        <translation>软件包的来源</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>软件仓库</translation>
    </message>
    <message>
        <source>What is downloaded; of a package that goes, what it takes on the disk</source>
        <translation>要下载的大小；对于将被删除的软件包，为其占用的磁盘空间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Why the package is part of the transaction</source>
        <translation>该软件包包含在事务中的原因</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>降级</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>重新安装</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>已标记</translation>
    </message>
    <message>
        <source>required by %1</source>
        <translation>%1 需要</translation>
    </message>
    <message>
        <source>recommended by %1</source>
        <translation>%1 推荐</translation>
    </message>
    <message>
        <source>goes together with %1</source>
        <translation>与 %1 配套</translation>
    </message>
    <message>
        <source>needs %1</source>
        <translation>依赖 %1</translation>
    </message>
    <message>
        <source>replaced by %1</source>
        <translation>被 %1 取代</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>不再需要</translation>
    </message>
    <message>
        <source>to resolve dependencies</source>
        <translation>为了解决依赖关系</translation>
    </message>
    <message>
        <source>%1; replaces %2</source>
        <translation>%1；取代 %2</translation>
    </message>
    <message>
        <source>Removed without being marked: %1</source>
        <translation>未标记但将被删除：%1</translation>
    </message>
    <message>
        <source>Protected, and goes all the same: %1</source>
        <translation>受保护但仍将被移除：%1</translation>
    </message>
    <message>
        <source>The running kernel goes: %1</source>
        <translation>正在运行的内核将被移除：%1</translation>
    </message>
    <message>
        <source>Older than the installed version: %1</source>
        <translation>比已安装的版本旧：%1</translation>
    </message>
    <message>
        <source>Signature not checked, by the configuration of the repository: %1</source>
        <translation>根据软件仓库的配置不检查签名：%1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及另外 %2 个</translation>
    </message>
    <message>
        <source>one version too many</source>
        <translation>超出保留的版本数</translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Totals</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>What you may not expect of this transaction</source>
        <translation>此事务中您可能没有预料到的内容</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>To download: %1</source>
        <translation>需下载：%1</translation>
    </message>
    <message>
        <source>On the disk: no change</source>
        <translation>磁盘：无变化</translation>
    </message>
    <message>
        <source>On the disk: %1 more</source>
        <translation>磁盘：增加 %1</translation>
    </message>
    <message>
        <source>On the disk: %1 less</source>
        <translation>磁盘：减少 %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>The packages of the transaction, and why each is part of it</source>
        <translation>事务中的软件包，以及各自包含在内的原因</translation>
    </message>
    <message>
        <source>Load &amp;Changes</source>
        <translation>加载更改(&amp;C)</translation>
    </message>
    <message>
        <source>Reads the changelogs of the repositories, which may have to be downloaded</source>
        <translation>读取软件仓库的更改日志，可能需要下载</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>What has changed since the installed versions</source>
        <translation>自已安装版本以来的更改</translation>
    </message>
    <message>
        <source>The changelogs are being read…</source>
        <translation>正在读取更改日志……</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new of %1.</source>
        <translation>更改日志中没有关于 %1 的新内容。</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new.</source>
        <translation>更改日志中没有新内容。</translation>
    </message>
</context>
<context>
    <name>EmptyTableNote</name>
    <message>
        <source>There are no packages.</source>
        <translation>没有软件包。</translation>
    </message>
    <message>
        <source>Nothing matches %1 in %2.</source>
        <extracomment>%1 is an expression, %2 one of the choices beside it, such as &quot;View All&quot;</extracomment>
        <translation>“%2”中没有与 %1 匹配的项。</translation>
    </message>
    <message>
        <source>There is nothing in %1.</source>
        <extracomment>%1 is one of the choices above the table, such as &quot;View Updatable&quot;</extracomment>
        <translation>“%1”中没有内容。</translation>
    </message>
    <message>
        <source>%1 match in %2</source>
        <extracomment>%1 is a number of rows, %2 is &quot;View All&quot;</extracomment>
        <translation>“%2”中有 %1 项匹配</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>“%2”中有 %1 项</translation>
    </message>
    <message>
        <source>%1 match among groups</source>
        <translation>组中有 %1 项匹配</translation>
    </message>
    <message>
        <source>%1 among groups</source>
        <translation>组中有 %1 项</translation>
    </message>
    <message>
        <source>%1 match without case</source>
        <translation>不区分大小写有 %1 项匹配</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>清除表达式</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>所用软件库的元数据中没有公告。</translation>
    </message>
</context>
<context>
    <name>Execute</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>fork() failed; errno = %1 (%2)</source>
        <translation>fork() 失败；errno = %1（%2）</translation>
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
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>已更新</translation>
    </message>
    <message>
        <source>Downgraded</source>
        <translation>已降级</translation>
    </message>
    <message>
        <source>Reinstalled</source>
        <translation>已重新安装</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>已被取代</translation>
    </message>
    <message>
        <source>Reason changed</source>
        <translation>原因已更改</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>已替换</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>user</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>dependency</source>
        <translation>依赖</translation>
    </message>
    <message>
        <source>weak dependency</source>
        <translation>弱依赖</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>不再需要</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>其他程序</translation>
    </message>
    <message>
        <source>Groups: %1</source>
        <translation>组：%1</translation>
    </message>
</context>
<context>
    <name>History::Model</name>
    <message>
        <source>Number of the transaction, as the package library counts</source>
        <translation>软件包库所计的事务编号</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>When the transaction began</source>
        <translation>事务开始的时间</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Who had logged in</source>
        <translation>当时登录的人</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>What came of the transaction</source>
        <translation>事务的结果</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>What was done to how many packages and groups</source>
        <translation>对多少软件包和组做了什么</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Command line of the program that did it</source>
        <translation>执行程序的命令行</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>What the user has noted</source>
        <translation>用户的备注</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>注释</translation>
    </message>
</context>
<context>
    <name>History::PackagesModel</name>
    <message>
        <source>%1: failed</source>
        <translation>%1：失败</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>组 %1</translation>
    </message>
    <message>
        <source>What was done to the package</source>
        <translation>对软件包做了什么</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>软件包的名称</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Version before, and the version that took its place</source>
        <translation>之前的版本，以及取代它的版本</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>软件包的架构</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Where the package came from</source>
        <translation>软件包的来源</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>软件库</translation>
    </message>
    <message>
        <source>Why the package was installed</source>
        <translation>软件包被安装的原因</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
</context>
<context>
    <name>History::Records</name>
    <message>
        <source>Unable to read the history of transactions</source>
        <translation>无法读取事务历史</translation>
    </message>
</context>
<context>
    <name>History::Window</name>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>No transaction is known.</source>
        <translation>没有已知的事务。</translation>
    </message>
    <message>
        <source>No transaction fits the search.</source>
        <translation>没有符合搜索的事务。</translation>
    </message>
    <message>
        <source>Transaction %1: %2</source>
        <translation>事务 %1：%2</translation>
    </message>
    <message>
        <source>Begun: %1</source>
        <translation>开始：%1</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>用户：%1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>命令：%1</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>注释：%1</translation>
    </message>
    <message>
        <source>The scripts of the packages wrote nothing.</source>
        <translation>软件包的脚本没有输出。</translation>
    </message>
    <message>
        <source>The package library doesn&apos;t keep what scripts of packages write.</source>
        <translation>该软件包库不保存软件包脚本的输出。</translation>
    </message>
    <message>
        <source>The helper script in use is too old for changes by the history</source>
        <translation>所用的辅助脚本太旧，无法按历史进行更改</translation>
    </message>
    <message>
        <source>Do the opposite of the chosen transaction</source>
        <translation>执行所选事务的相反操作</translation>
    </message>
    <message>
        <source>Do the chosen transaction once more</source>
        <translation>再次执行所选事务</translation>
    </message>
    <message>
        <source>Undo all transactions behind the chosen one</source>
        <translation>撤销所选事务之后的所有事务</translation>
    </message>
    <message>
        <source>Not all of it can be done:</source>
        <translation>并非全部都能完成：</translation>
    </message>
    <message>
        <source>Go on with the rest? What exactly is done is shown before, and asked once more.</source>
        <translation>继续其余部分吗？具体操作会事先显示，并再次询问。</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>文本 (*.txt)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>All transactions, the latest first</source>
        <translation>所有事务，最新的在前</translation>
    </message>
    <message>
        <source>part of a name, or a pattern such as kernel*</source>
        <translation>名称的一部分，或如 kernel* 的模式</translation>
    </message>
    <message>
        <source>Shows only the transactions about packages whose name, version and
architecture hold this text or, with * or ?, match it</source>
        <translation>只显示其软件包的名称、版本和架构包含此文本，
或（用 * 或 ?）与之匹配的事务</translation>
    </message>
    <message>
        <source>Pac&amp;kage:</source>
        <translation>软件包(&amp;K)：</translation>
    </message>
    <message>
        <source>The chosen transaction</source>
        <translation>所选事务</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>软件包</translation>
    </message>
    <message>
        <source>What the chosen transaction did</source>
        <translation>所选事务做了什么</translation>
    </message>
    <message>
        <source>Script Output</source>
        <translation>脚本输出</translation>
    </message>
    <message>
        <source>What scripts of the packages wrote during the transaction</source>
        <translation>事务期间软件包脚本的输出</translation>
    </message>
    <message>
        <source>&amp;Packages</source>
        <translation>软件包(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Script Output</source>
        <translation>脚本输出(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Undo This</source>
        <translation>撤销此事务(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Roll Back To Here</source>
        <translation>回滚到此处(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>重做(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;This Transaction...</source>
        <translation>此事务(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;All Transactions...</source>
        <translation>所有事务(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>Write transactions into a file, as text or JSON</source>
        <translation>将事务以文本或 JSON 写入文件</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close the history</source>
        <translation>关闭历史</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>事务</translation>
    </message>
</context>
<context>
    <name>KeyDialog</name>
    <message>
        <source>Import Key</source>
        <translation>导入密钥</translation>
    </message>
    <message>
        <source>Fetch Key</source>
        <translation>获取密钥</translation>
    </message>
    <message>
        <source>Is this key to be trusted? Everything that it has signed is accepted from then on. Import it only if you know its fingerprint from elsewhere, such as its owner&apos;s pages.</source>
        <translation>要信任此密钥吗？此后将接受由它签名的所有内容。只有在您通过其他途径（例如其所有者的网页）得知其指纹时，才应导入。</translation>
    </message>
    <message>
        <source>A key that is missing is to be fetched from the address below. Nothing is trusted yet: you see the key before it is imported.</source>
        <translation>将从以下地址获取缺少的密钥。此时尚不信任任何内容：导入之前您会看到该密钥。</translation>
    </message>
    <message>
        <source>User ID:</source>
        <translation>用户标识：</translation>
    </message>
    <message>
        <source>Fingerprint:</source>
        <translation>指纹：</translation>
    </message>
    <message>
        <source>Key ID:</source>
        <translation>密钥标识：</translation>
    </message>
    <message>
        <source>%1 (short: %2)</source>
        <translation>%1（短：%2）</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>创建日期：</translation>
    </message>
    <message>
        <source>Expires:</source>
        <translation>到期日期：</translation>
    </message>
    <message>
        <source>never</source>
        <translation>永不</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>传输：</translation>
    </message>
    <message>
        <source>a file of this system</source>
        <translation>本系统的文件</translation>
    </message>
    <message>
        <source>https: encrypted, from a server that has proved its name</source>
        <translation>https：已加密，且服务器已证明其名称</translation>
    </message>
    <message>
        <source>%1: not encrypted. Anybody on the way may have exchanged the key.</source>
        <translation>%1：未加密。传输途中的任何人都可能已替换该密钥。</translation>
    </message>
    <message>
        <source>Repository:</source>
        <translation>仓库：</translation>
    </message>
    <message>
        <source>Signed with it:</source>
        <translation>由其签名：</translation>
    </message>
    <message>
        <source>the metadata of the repository</source>
        <translation>仓库的元数据</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>https: encrypted, but any server may answer, since sslverify is switched off. Anybody on the way may have exchanged the key.</source>
        <translation>https：已加密，但由于 sslverify 已关闭，任何服务器都可以应答。传输途中的任何人都可能已替换该密钥。</translation>
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
        <translation>VEM 日志</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation>详细级别</translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation>比此级别更详细的日志消息将被省略。
级别越高，显示的内容越详细。
有效范围为 0 到 %1。
默认值为 %2。
较高的级别包含调试信息。
对应于 yum 的 debuglevel (-d) 选项。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation>关闭日志窗口</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation>清理缓存在本地 %1 中的 RPM 软件包头</translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation>清理缓存在本地 %1 中的 RPM 软件包
（可用于释放磁盘空间）</translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation>清理缓存在本地 %1 中的 XML 元数据
（与“清理 pickle 数据”一起使用，
 可强制下载新的可用软件包列表）</translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation>清理缓存在本地 %1 中的 pickle 数据
（与“清理 XML 元数据”一起使用，
 可强制下载新的可用软件包列表）</translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation>清理缓存在本地 %1 中的所有数据</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于 VEM</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation>与软件包的所有字段进行匹配的正则表达式</translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation>与表格中可见的文本字段进行匹配的筛选正则表达式</translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation>使用左侧指定的正则表达式进行搜索</translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation>应用左侧指定的筛选条件</translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation>指定使用正则表达式在表格中选取软件包的方式：
	“筛选”匹配表格中可见的文本字段，如同这些字段以空格相连。
	“搜索”分别匹配软件包的所有字段，包括文件、变更日志、依赖等列表，
	速度要慢得多。</translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation>%1（必须加载额外数据。）</translation>
    </message>
    <message>
        <source>VEM - %1</source>
        <translation>VEM - %1</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>程序(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>日志(&amp;L)</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation>仓库(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation>编辑配置(&amp;E)</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Cache</source>
        <translation>缓存(&amp;C)</translation>
    </message>
    <message>
        <source>Clean Headers</source>
        <translation>清理软件包头</translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation>清理软件包</translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation>清理 XML 元数据</translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation>清理 pickle 数据</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>全部清理</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation>手册 (HTML)</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation>手册 (PDF)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于 VEM(&amp;A)</translation>
    </message>
    <message>
        <source>Filter or Search</source>
        <translation>筛选或搜索</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>正则表达式</translation>
    </message>
    <message>
        <source>View Updatable</source>
        <translation>查看可更新</translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation>查看可安装</translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation>查看可删除</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>查看全部</translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation>筛选出可更新、可安装或可删除的软件包，
或显示所有软件包</translation>
    </message>
    <message>
        <source>View</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation>包含软件包组</translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation>筛选结果是否包含软件包组</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation>弹出窗口，显示当前所选软件包的详细信息</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>调整大小(&amp;S)</translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation>将各列和窗口调整为最佳大小</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation>刷新已安装软件包和可更新软件包的列表。
可用于检查仓库中是否有新的更新，或在手动安装软件包之后使用。</translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation>将所选项设为安装/更新(&amp;I)</translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>在所选软件包中，将未安装的软件包的操作设为“安装”，
将已安装但已过时的软件包的操作设为“更新”。
不会自动应用操作。</translation>
    </message>
    <message>
        <source>Set &amp;Update of All Out-of-Date</source>
        <translation>将所有过时项设为更新(&amp;U)</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>将所有已安装但已过时的软件包的操作设为“更新”。
不会自动应用操作。</translation>
    </message>
    <message>
        <source>&amp;Clear Actions</source>
        <translation>清除操作(&amp;L)</translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation>清除所有已指定的操作（更新、安装和删除）</translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation>应用操作(&amp;A)</translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation>应用已指定的操作（更新、安装和删除）</translation>
    </message>
    <message>
        <source>Item Progress</source>
        <translation>当前项进度</translation>
    </message>
    <message>
        <source>Total Progress</source>
        <translation>总进度</translation>
    </message>
    <message>
        <source>VEM</source>
        <translation>VEM</translation>
    </message>
    <message>
        <source>Unfinished Transaction</source>
        <translation>未完成的事务</translation>
    </message>
    <message>
        <source>Shall the older versions be removed? What exactly is done is shown before, and asked once more.</source>
        <translation>要删除旧版本吗？执行前会显示具体内容，并再次询问。</translation>
    </message>
    <message>
        <source>&amp;Remove Older Versions</source>
        <translation>删除旧版本(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Leave Them</source>
        <translation>保留(&amp;L)</translation>
    </message>
    <message>
        <source>Not everything that is configured could be used, so the table may not show what it should:</source>
        <translation>并非所有已配置的内容都可以使用，因此表格显示的内容可能不完整：</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>表格不完整</translation>
    </message>
    <message>
        <source>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM（Verified Estate Manager）是一个图形用户界面程序，用于更改系统中已安装的 rpm 软件包。&lt;/p&gt;&lt;p&gt;功能：&lt;p&gt;&lt;ul&gt;&lt;li&gt;从 yum 软件包仓库下载并安装新的软件包，或更新现有的软件包&lt;/li&gt;&lt;li&gt;删除现有的软件包&lt;/li&gt;&lt;li&gt;配置用于获取新软件包和更新的各个仓库&lt;/li&gt;&lt;li&gt;查看已安装的软件包以及可安装或可更新的软件包&lt;/li&gt;&lt;li&gt;安装、更新或删除软件包组&lt;/li&gt;&lt;li&gt;安装或更新软件包套件&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Package library: %1&lt;/p&gt;</source>
        <translation>&lt;p&gt;软件包库：%1&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Web page: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;网页：&lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What the program remembers was damaged; it has been put aside as %1</source>
        <translation>程序记住的设置已损坏，已另存为 %1</translation>
    </message>
    <message>
        <source>Actions that are gone with their rows: %1</source>
        <translation>随行一起消失的操作：%1</translation>
    </message>
    <message>
        <source>View Marked</source>
        <translation>查看已标记</translation>
    </message>
    <message>
        <source>&amp;Reset Window</source>
        <translation>重置窗口(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;election</source>
        <translation>选择(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>Packages are being installed, updated or removed.
That goes on to its end, and the program ends behind it.</source>
        <translation>正在安装、更新或删除软件包。
该操作会进行到底，随后程序退出。</translation>
    </message>
    <message>
        <source>&amp;Open Package Files...</source>
        <translation>打开软件包文件(&amp;O)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Shows packages of .rpm files and of https addresses in the table, marked for installation</source>
        <translation>在表格中显示 .rpm 文件和 https 地址的软件包，并标记为安装</translation>
    </message>
    <message>
        <source>The package library in use can&apos;t open package files here</source>
        <translation>正在使用的软件包库在此无法打开软件包文件</translation>
    </message>
    <message>
        <source>The search was stopped: only what it had found by then is shown</source>
        <translation>搜索已停止：仅显示此前找到的内容</translation>
    </message>
    <message>
        <source>An answer is waited for.</source>
        <translation>正在等待答复。</translation>
    </message>
    <message>
        <source>All actions have been applied.</source>
        <translation>所有操作均已应用。</translation>
    </message>
    <message>
        <source>Not all actions have been applied.</source>
        <translation>并非所有操作都已应用。</translation>
    </message>
    <message>
        <source>Open Log With Each &amp;Apply</source>
        <translation>每次应用时打开日志(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>历史(&amp;H)</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Shows what was installed, updated and removed, and takes it back</source>
        <translation>显示安装、更新和删除过的内容，并可撤回</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell the history</source>
        <translation>所用的辅助脚本太旧，无法给出历史</translation>
    </message>
    <message>
        <source>A&amp;dvisories</source>
        <translation>公告(&amp;D)</translation>
    </message>
    <message>
        <source>Shows what the repositories advise about installed packages, security first of all</source>
        <translation>显示软件库对已安装软件包的建议，首先是安全方面</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell of advisories</source>
        <translation>所用的辅助脚本太旧，无法给出公告</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>View Security Updates</source>
        <translation>查看安全更新</translation>
    </message>
    <message>
        <source>Set Update of &amp;Security Fixes</source>
        <translation>将安全修复设为更新(&amp;S)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Shift+U</translation>
    </message>
    <message>
        <source>Set Update of Security Fixes</source>
        <translation>将安全修复设为更新</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>所用软件库的元数据中没有公告。</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which have a security update to Update.
Does not Apply Actions automatically.</source>
        <translation>将所有有安全更新的软件包的操作设为“更新”。
不会自动应用操作。</translation>
    </message>
    <message>
        <source>Res&amp;tarts</source>
        <translation>重启(&amp;T)</translation>
    </message>
    <message>
        <source>Shows what still works with files that have been replaced, and restarts services</source>
        <translation>显示仍在使用已被替换的文件的程序，并重启服务</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell what is to be restarted</source>
        <translation>所用的辅助脚本太旧，无法说明需要重启什么</translation>
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
        <translation>打开软件包文件</translation>
    </message>
    <message>
        <source>&amp;Files (.rpm) and addresses (https), one a line:</source>
        <translation>文件 (.rpm) 和地址 (https)，每行一个(&amp;F)：</translation>
    </message>
    <message>
        <source>Package files</source>
        <translation>软件包文件</translation>
    </message>
    <message>
        <source>Paths of .rpm files and https addresses, one a line</source>
        <translation>.rpm 文件的路径和 https 地址，每行一个</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>Choose .rpm files of this machine</source>
        <translation>选择本机的 .rpm 文件</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Show the packages in the table, marked for installation</source>
        <translation>在表格中显示这些软件包，并标记为安装</translation>
    </message>
    <message>
        <source>Package files (*.rpm);;All files (*)</source>
        <translation>软件包文件 (*.rpm);;所有文件 (*)</translation>
    </message>
    <message>
        <source>This is no readable .rpm file and no https address: %1</source>
        <translation>这既不是可读的 .rpm 文件，也不是 https 地址：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>删除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation>无操作(&amp;N)</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>VEM Package Description</source>
        <translation>VEM 软件包详细信息</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Go back to the package described before</source>
        <translation>返回之前描述的软件包</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Area</name>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>仓库</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Change Log</source>
        <translation>变更日志</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
    <message>
        <source>%1 (must load extra data)</source>
        <translation>%1（必须加载额外数据）</translation>
    </message>
    <message>
        <source>%1 %2 File List</source>
        <translation>%1 %2 文件列表</translation>
    </message>
    <message>
        <source>%1 %2 Change Log</source>
        <translation>%1 %2 变更日志</translation>
    </message>
    <message>
        <source>Required Groups</source>
        <translation>必需的软件包组</translation>
    </message>
    <message>
        <source>Default MetaPkgs</source>
        <translation>默认元软件包</translation>
    </message>
    <message>
        <source>Optional MetaPkgs</source>
        <translation>可选元软件包</translation>
    </message>
    <message>
        <source>Mandatory Packages</source>
        <translation>必需软件包</translation>
    </message>
    <message>
        <source>Default Packages</source>
        <translation>默认软件包</translation>
    </message>
    <message>
        <source>Optional Packages</source>
        <translation>可选软件包</translation>
    </message>
    <message>
        <source>Conditional Packages</source>
        <translation>条件软件包</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>软件包组</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>供应商</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>构建时间</translation>
    </message>
    <message>
        <source>Build Host</source>
        <translation>构建主机</translation>
    </message>
    <message>
        <source>Install Time</source>
        <translation>安装时间</translation>
    </message>
    <message>
        <source>Binary RPM</source>
        <translation>二进制 RPM</translation>
    </message>
    <message>
        <source>Source RPM</source>
        <translation>源码 RPM</translation>
    </message>
    <message>
        <source>License</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Packager</source>
        <translation>打包者</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Relocations</source>
        <translation>可重定位路径</translation>
    </message>
    <message>
        <source>Provides</source>
        <translation>提供</translation>
    </message>
    <message>
        <source>Requires</source>
        <translation>依赖</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>冲突</translation>
    </message>
    <message>
        <source>Obsoletes</source>
        <translation>废弃</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::RepoDialog</name>
    <message>
        <source>VEM Repository Description</source>
        <translation>VEM 仓库详细信息</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>浏览仓库</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>使用外部 Web 浏览器浏览所选仓库的第一个 URL</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>镜像列表 URL</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Section</name>
    <message>
        <source>Required By</source>
        <translation>被以下软件包需要</translation>
    </message>
    <message>
        <source>Which packages require this one</source>
        <translation>哪些软件包需要此软件包</translation>
    </message>
    <message>
        <source>Recommended By</source>
        <translation>被以下软件包推荐</translation>
    </message>
    <message>
        <source>Which packages recommend this one</source>
        <translation>哪些软件包推荐此软件包</translation>
    </message>
    <message>
        <source>Provides What It Requires</source>
        <translation>提供其所需的软件包</translation>
    </message>
    <message>
        <source>Which packages have what this one requires</source>
        <translation>哪些软件包具有此软件包所需的内容</translation>
    </message>
    <message>
        <source>Why Installed</source>
        <translation>为何安装</translation>
    </message>
    <message>
        <source>Who wanted this package, and which transaction installed it</source>
        <translation>谁需要此软件包，以及由哪个事务安装</translation>
    </message>
    <message>
        <source>Advisories</source>
        <translation>公告</translation>
    </message>
    <message>
        <source>Which advisories name this package, and whether it has what they advise</source>
        <translation>哪些公告提及此软件包，以及其建议是否已应用</translation>
    </message>
    <message>
        <source>Other Versions</source>
        <translation>其他版本</translation>
    </message>
    <message>
        <source>All versions that are installed or that a repository has</source>
        <translation>已安装或软件仓库中的所有版本</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>These are the first %L1 of %L2.</source>
        <translation>这是 %L2 项中的前 %L1 项。</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
</context>
<context>
    <name>PackageTable::ExpressionEdit</name>
    <message>
        <source>Match Case</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>清除表达式</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Whether capital and small letters differ (%1)</source>
        <translation>是否区分大写和小写字母 (%1)</translation>
    </message>
    <message>
        <source>%1, at letter %2 of the expression: %3</source>
        <extracomment>%1 is what the system&apos;s library says is wrong, %2 the number of the letter, from 1, %3 the letter</extracomment>
        <translation>%1，在表达式的第 %2 个字符：%3</translation>
    </message>
    <message>
        <source>Not Valid</source>
        <translation>无效</translation>
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
        <translation>要对软件包执行的操作（如果有）：更新、安装、删除</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation>指示软件包是否已安装；如果已安装，还指示是否为最新</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation>软件包是普通软件包、软件包套件还是软件包组</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>软件包的名称</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation>软件包的版本和发布号，格式为“版本-发布号”；
如果 epoch 不为零，则格式为“epoch:版本-发布号”</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>仓库</translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation>提供软件包最新版本的仓库</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation>软件包适用的架构；与架构无关的通用软件包为“noarch”</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation>软件包的大小</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>构建时间</translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation>软件包创建的日期和时间</translation>
    </message>
    <message>
        <source>Update package</source>
        <translation>更新软件包</translation>
    </message>
    <message>
        <source>Install package</source>
        <translation>安装软件包</translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation>删除软件包</translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation>软件包可用于更新已过时的版本</translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation>软件包可供安装</translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation>软件包已安装且为最新</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>软件包套件</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>软件包组</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>普通软件包</translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation>可用：%1
</translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation>已安装：%1
</translation>
    </message>
    <message>
        <source>
Installed in more than one version: %1</source>
        <translation>
安装了多个版本：%1</translation>
    </message>
    <message>
        <source>Package is available to replace %1</source>
        <translation>软件包可用于替换 %1</translation>
    </message>
    <message>
        <source>Replaces: %1
</source>
        <translation>替换：%1
</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>What the package is, in one line</source>
        <translation>一行的软件包说明</translation>
    </message>
    <message>
        <source>Installed Version</source>
        <translation>已安装版本</translation>
    </message>
    <message>
        <source>Version and release that is installed, if any</source>
        <translation>已安装的版本和发行号（如有）</translation>
    </message>
    <message>
        <source>Installed Size</source>
        <translation>安装大小</translation>
    </message>
    <message>
        <source>What the package takes on the disk</source>
        <translation>软件包占用的磁盘空间</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Kind of software, as the package states it</source>
        <translation>软件包注明的软件类别</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Terms under which the package may be used and passed on</source>
        <translation>软件包的使用和再分发条款</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>供应商</translation>
    </message>
    <message>
        <source>Who has published the package</source>
        <translation>软件包的发布者</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Why the package is installed: asked for by the user, by a group, or as a dependency</source>
        <translation>安装原因：用户要求、所属组或依赖关系</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>公告</translation>
    </message>
    <message>
        <source>Advisories that the update carries out, and how grave the gravest one is</source>
        <translation>更新所实施的公告，以及其中最高的严重程度</translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>浏览仓库</translation>
    </message>
</context>
<context>
    <name>PackageTable::SelectionActions</name>
    <message>
        <source>Install/Update of Selected: %1</source>
        <extracomment>%1 is a number of packages</extracomment>
        <translation>安装/更新所选：%1</translation>
    </message>
    <message>
        <source>Remove Selected: %1</source>
        <translation>移除所选：%1</translation>
    </message>
    <message>
        <source>No Action for Selected: %1</source>
        <translation>对所选不执行操作：%1</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>浏览仓库</translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Packages</source>
        <translation>软件包</translation>
    </message>
</context>
<context>
    <name>QProgressBar</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>Relations</name>
    <message>
        <source>Unable to read what is told of other packages</source>
        <translation>无法读取有关其他软件包的信息</translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VEM Authentication</source>
        <translation>VEM 身份验证</translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation>部分已配置的仓库需要身份验证</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>镜像列表 URL</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>使用 Buffet 身份验证方式的仓库的验证名称</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>使用 Buffet 身份验证方式的仓库的验证密码</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation>在此会话中禁用</translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation>全部跳过</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>应用于全部</translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation>应用于此主机的全部仓库</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>RepoBrowse</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation>仓库配置中没有 URL</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Config</name>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation>（是）</translation>
    </message>
    <message>
        <source>(No)</source>
        <translation>（否）</translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation>未指定标识符</translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation>未指定 URL 或镜像列表 URL</translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation>文件不在任何 reposdir 目录中</translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation>文件没有 .repo 后缀</translation>
    </message>
    <message>
        <source>No Buffet Authentication Name specified</source>
        <translation>未指定 Buffet 验证名称</translation>
    </message>
    <message>
        <source>No Buffet Authentication Password specified</source>
        <translation>未指定 Buffet 验证密码</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>仓库的唯一标识符</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>仓库的描述</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation>仓库的 URL 列表。
如果指定多个，它们应为内容完全相同的镜像，
以便在某些 URL 无法访问时互为备份。</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>镜像列表 URL</translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation>包含仓库 URL 列表的文件的 URL。</translation>
    </message>
    <message>
        <source>Buffet Authentication</source>
        <translation>Buffet 身份验证</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>使用 Buffet 身份验证方式的仓库的验证名称</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>使用 Buffet 身份验证方式的仓库的验证密码</translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation>仓库选项</translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation>此仓库的任何其他 yum 选项。参见 yum.conf(5)</translation>
    </message>
    <message>
        <source>Other Options:</source>
        <translation>其他选项：</translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation>是否启用该仓库</translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation>是否检查来自该仓库的软件包的 GPG 密钥签名，以确保其真实性</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Check GPG Keys</source>
        <translation>检查 GPG 密钥</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation>配置文件（高级）</translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation>用于保存此仓库配置的 yum 配置文件的名称。
如果留空，则默认使用仓库的标识符</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation>数字排序键，用于在包含多个仓库配置的配置文件中
确定此仓库配置的顺序</translation>
    </message>
    <message>
        <source>Sort Position</source>
        <translation>排序位置</translation>
    </message>
    <message>
        <source>Line %1 of Other Options would begin another section</source>
        <translation>其他选项的第 %1 行会开始另一个节</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is indented but continues no option</source>
        <translation>其他选项的第 %1 行有缩进，但没有可接续的选项</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is no option: it lacks &quot;=&quot;</source>
        <translation>其他选项的第 %1 行不是选项：缺少“=”</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VEM Repository Configuration</source>
        <translation>VEM 仓库配置</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation>撤销对此仓库配置的更改</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation>撤销对此仓库配置的更改并关闭窗口</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>应用对所有仓库配置的更改并关闭窗口</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>浏览仓库</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VEM Repository Configuration Editor</source>
        <translation>VEM 仓库配置编辑器</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>浏览仓库</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>使用外部 Web 浏览器浏览所选仓库的第一个 URL</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation>编辑所选的仓库配置</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation>从头创建新的仓库配置</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation>基于所选仓库创建新的仓库配置</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation>删除所选的仓库配置</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重置</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation>撤销自上次应用或打开对话框以来对所有仓库配置的更改</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation>撤销自上次应用或打开对话框以来对所有仓库配置的更改，并关闭窗口</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation>应用对所有仓库配置的更改，但不关闭窗口</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>应用对所有仓库配置的更改并关闭窗口</translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation>有仓库没有标识符</translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation>两个或多个仓库使用同一标识符 %1</translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation>有未应用的配置更改</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>Sess</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation>是否在此会话中使用该仓库。
此设置优先于仓库配置中永久的“启用”标志。</translation>
    </message>
    <message>
        <source>Perm</source>
        <translation>永久</translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation>该仓库是否配置为默认启用。
可在特定会话中另行设定。</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>仓库的唯一标识符</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>仓库的描述</translation>
    </message>
    <message>
        <source>(new)</source>
        <translation>（新）</translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation>仓库已在此会话中启用</translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation>仓库未在此会话中启用</translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation>仓库已配置为启用</translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation>仓库未配置为启用</translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Repositories</source>
        <translation>仓库</translation>
    </message>
</context>
<context>
    <name>Restarts::FilesModel</name>
    <message>
        <source>Removed</source>
        <translation>已移除</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>已替换</translation>
    </message>
    <message>
        <source>Path of the file</source>
        <translation>文件的路径</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Package that the file belongs to now</source>
        <translation>文件现在所属的软件包</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>软件包</translation>
    </message>
    <message>
        <source>Whether the file that the process uses is there in another version, or gone</source>
        <translation>进程所用的文件是已换成另一版本，还是已不存在</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>Restarts::Model</name>
    <message>
        <source>Unit of systemd that the process belongs to</source>
        <translation>进程所属的 systemd 单元</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Command that runs</source>
        <translation>正在运行的命令</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Number of the process</source>
        <translation>进程的编号</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>Whose process it is</source>
        <translation>进程的所有者</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>When the process began</source>
        <translation>进程开始的时间</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>启动时间</translation>
    </message>
    <message>
        <source>How many files it uses that have been replaced</source>
        <translation>它使用了多少已被替换的文件</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>Restarts::Reader</name>
    <message>
        <source>Unable to find out what is to be restarted</source>
        <translation>无法查明需要重启什么</translation>
    </message>
    <message>
        <source>Unable to restart services</source>
        <translation>无法重启服务</translation>
    </message>
</context>
<context>
    <name>Restarts::Window</name>
    <message>
        <source>Restarts</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>The system is to be started anew. Since its start on %1 have been installed:</source>
        <translation>系统需要重新启动。自 %1 启动以来安装了：</translation>
    </message>
    <message>
        <source>The system need not be started anew.</source>
        <translation>系统无需重新启动。</translation>
    </message>
    <message>
        <source>No process uses files that have been replaced.</source>
        <translation>没有进程使用已被替换的文件。</translation>
    </message>
    <message>
        <source>Processes of which nothing could be told for lack of rights: %1</source>
        <translation>因权限不足而无法查明的进程：%1</translation>
    </message>
    <message>
        <source>The helper script in use is too old to restart services</source>
        <translation>所用的辅助脚本太旧，无法重启服务</translation>
    </message>
    <message>
        <source>Restarts the services of these processes, as far as they can be restarted</source>
        <translation>重启这些进程所属的、可以重启的服务</translation>
    </message>
    <message>
        <source>These services are restarted, one after the other:</source>
        <translation>以下服务将逐个重启：</translation>
    </message>
    <message>
        <source>What they do is interrupted for that time.</source>
        <translation>在此期间，它们的工作会中断。</translation>
    </message>
    <message>
        <source>Restart Services</source>
        <translation>重启服务</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Whether the system is to be started anew</source>
        <translation>系统是否需要重新启动</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>Processes that use files which have been replaced</source>
        <translation>使用已被替换的文件的进程</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Replaced files that the chosen process uses</source>
        <translation>所选进程使用的已被替换的文件</translation>
    </message>
    <message>
        <source>&amp;Restart These Services</source>
        <translation>重启这些服务(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>重新查看(&amp;L)</translation>
    </message>
    <message>
        <source>Find out anew what is to be restarted</source>
        <translation>重新查明需要重启什么</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close the restarts</source>
        <translation>关闭重启窗口</translation>
    </message>
</context>
<context>
    <name>ScrollableConfirmDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Transaction</source>
        <translation>事务(&amp;T)</translation>
    </message>
</context>
<context>
    <name>ScrollableErrorDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 of %2 shown</source>
        <translation>显示 %1 / %2</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>已选 %1</translation>
    </message>
    <message>
        <source>1 install</source>
        <translation>安装 1</translation>
    </message>
    <message>
        <source>%1 installs</source>
        <translation>安装 %1</translation>
    </message>
    <message>
        <source>1 update</source>
        <translation>更新 1</translation>
    </message>
    <message>
        <source>%1 updates</source>
        <translation>更新 %1</translation>
    </message>
    <message>
        <source>1 removal</source>
        <translation>移除 1</translation>
    </message>
    <message>
        <source>%1 removals</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>%1 marked: %2</source>
        <extracomment>%1 is a number, %2 something like &quot;2 installs, 1 removal&quot;</extracomment>
        <translation>已标记 %1：%2</translation>
    </message>
    <message>
        <source>%1; %2 to download</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1；需下载 %2</translation>
    </message>
    <message>
        <source>Looking only</source>
        <translation>仅供查看</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>表格不完整</translation>
    </message>
    <message>
        <source>%1, %2 more on the disk</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1，磁盘多占用 %2</translation>
    </message>
    <message>
        <source>%1, %2 less on the disk</source>
        <translation>%1，磁盘少占用 %2</translation>
    </message>
    <message>
        <source>Repositories read just now</source>
        <translation>刚刚读取了仓库</translation>
    </message>
    <message>
        <source>Repositories read 1 minute ago</source>
        <translation>1 分钟前读取了仓库</translation>
    </message>
    <message>
        <source>Repositories read %1 minutes ago</source>
        <translation>%1 分钟前读取了仓库</translation>
    </message>
    <message>
        <source>Repositories read 1 hour ago</source>
        <translation>1 小时前读取了仓库</translation>
    </message>
    <message>
        <source>Repositories read %1 hours ago</source>
        <translation>%1 小时前读取了仓库</translation>
    </message>
    <message>
        <source>Repositories read 1 day ago</source>
        <translation>1 天前读取了仓库</translation>
    </message>
    <message>
        <source>Repositories read %1 days ago</source>
        <translation>%1 天前读取了仓库</translation>
    </message>
</context>
<context>
    <name>StopButton</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Nothing is going on that could be stopped</source>
        <translation>没有可以停止的操作</translation>
    </message>
    <message>
        <source>Stops what is going on; nothing has been changed yet (Escape)</source>
        <translation>停止正在进行的操作；尚未更改任何内容 (Escape)</translation>
    </message>
    <message>
        <source>It is being stopped</source>
        <translation>正在停止</translation>
    </message>
    <message>
        <source>Packages are being changed: what has begun comes to its end</source>
        <translation>正在更改软件包：已经开始的操作会进行到底</translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>YumConfIO</name>
    <message>
        <source>; errno = %1 (%2).</source>
        <translation>；errno = %1（%2）。</translation>
    </message>
    <message>
        <source>VEM Repository Editor Error</source>
        <translation>VEM 仓库编辑器错误</translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation>仓库编辑器</translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation>无法读取 yum 配置文件 %1</translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation>无法获取仓库配置文件 %1 的状态 (stat)</translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation>无法读取仓库配置文件 %1</translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation>行中的节名称格式不正确：%1</translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation>读取仓库配置文件 %1 时出错</translation>
    </message>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation>有一个仓库没有标识符。它将被删除。</translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation>两个或多个仓库具有相同的标识符 %1。每个标识符只会应用一个仓库。</translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation>  是否继续？</translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation>无法写入仓库配置文件 %1</translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation>无法删除仓库配置文件 %1 (unlink)</translation>
    </message>
    <message>
        <source>subscription-manager generates these files and will write them anew, without the changes made here: %1.  Its own command, &quot;subscription-manager repo-override&quot;, makes lasting ones.</source>
        <translation>以下文件由 subscription-manager 生成，它会重新写入这些文件，不保留在此所做的更改：%1。若要持久更改，请使用它自己的命令“subscription-manager repo-override”。</translation>
    </message>
    <message>
        <source>%1 is not a regular file.  It is neither read nor changed.</source>
        <translation>%1 不是普通文件，既不会读取也不会更改。</translation>
    </message>
    <message>
        <source>The file %1 has not been read, or not to its end.  Nothing is written, so that nothing in it is lost.</source>
        <translation>文件 %1 未读取，或未读取到末尾。为避免丢失其中的内容，不会写入任何内容。</translation>
    </message>
    <message>
        <source>
The file is %1.</source>
        <translation>
文件为 %1。</translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Unable to release yum lock</source>
        <translation>无法释放 yum 锁</translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation>无法初始化</translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation>可更新</translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation>可安装</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>软件包套件</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>软件包组</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>普通软件包</translation>
    </message>
    <message>
        <source>Applying</source>
        <translation>正在应用</translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation>检查依赖关系：总进度</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>正在准备</translation>
    </message>
    <message>
        <source>Error applying changes</source>
        <translation>应用更改时出错</translation>
    </message>
    <message>
        <source>Error applying changes: Exiting on Broken Pipe</source>
        <translation>应用更改时出错：管道已断开，正在退出</translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation>无法将软件包 %1 添加到删除列表</translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation>无法将软件包 %1 添加到安装列表</translation>
    </message>
    <message>
        <source>Unable to find installed version for package update %1</source>
        <translation>找不到要更新的软件包 %1 的已安装版本</translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation>无法将新软件包添加到要更新的软件包 %1 的配对中</translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation>无法将旧软件包添加到要更新的软件包 %1 的配对中</translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation>无法将软件包 %1 添加到更新列表</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation>正在应用：已确认</translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation>未应用：已取消</translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation>执行事务：总进度</translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation>正在清理软件包头</translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation>正在清理软件包</translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation>正在清理 XML 元数据</translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation>正在清理 pickle 缓存</translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation>正在全部清理</translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation>初始化</translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation>初始化：总进度</translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation>无法获取 yum 锁</translation>
    </message>
    <message>
        <source>contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>未配置任何仓库。
可使用“仓库”菜单下的“编辑配置”来配置仓库。</translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>未启用任何仓库。
可使用“仓库”菜单下的“编辑配置”来配置仓库。</translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation>正在读取仓库</translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation>正在收集可更新的软件包</translation>
    </message>
    <message>
        <source>Unable to setup transaction</source>
        <translation>无法建立事务</translation>
    </message>
    <message>
        <source>Unable to collect updatable packages</source>
        <translation>无法收集可更新的软件包</translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation>正在收集已安装和可用的软件包</translation>
    </message>
    <message>
        <source>Unable to collect installed and available packages</source>
        <translation>无法收集已安装和可用的软件包</translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation>正在收集软件包组</translation>
    </message>
    <message>
        <source>Unable to collect groups</source>
        <translation>无法收集软件包组</translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation>无法设置仓库 %1：
%2</translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation>内部错误：找不到 yumIO.collectAll.%1</translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation>内部错误：无法识别的时间：%1</translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation>内部错误：无法识别的软件包大小：%1</translation>
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
        <translation>内部错误：无法识别的 yum 版本：%1</translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation>正在收集文件列表</translation>
    </message>
    <message>
        <source>file lists</source>
        <translation>文件列表</translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation>加载文件列表：总进度</translation>
    </message>
    <message>
        <source>Unable to collect file lists</source>
        <translation>无法收集文件列表</translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation>正在收集其他数据</translation>
    </message>
    <message>
        <source>miscellaneous data</source>
        <translation>其他数据</translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation>加载其他数据：总进度</translation>
    </message>
    <message>
        <source>Unable to collect miscellaneous data</source>
        <translation>无法收集其他数据</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation>内部错误：执行 yumIO.%1 失败</translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation>内部错误：找不到 rpm.%1</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation>内部错误：找不到软件包的 prco.%1</translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation>该软件包是可选的</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation>软件包 %1 包含在软件包组 %2 中，该组已标记为“%3”，
因此该软件包应标记为“%4”，
但它已被单独标记为“%5”。
您希望如何处理？</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation>软件包 %1 包含在软件包组 %2 中，该组已标记为“%3”，
因此该软件包应标记为“%4”，
但您在解决先前的冲突时已将其标记为“%5”。
您希望如何处理？</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation>软件包 %1 包含在软件包组 %2 中，该组已标记为“%3”，
因此该软件包应标记为“%4”，
但它也属于软件包组 %5，因而已标记为“%6”。
您希望如何处理？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation>手动解决冲突：将软件包 %1 标记为“%3”</translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation>软件包组 %1：将软件包 %2 标记为“%3”</translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation>软件包组 %1：软件包 %2 已标记为“%3”</translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation>软件包组 %1：不将软件包 %2 标记为“%3”，原因：%4</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation>内部错误：无法求值 groupInfo.%1</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation>内部错误：无法求值 groupInfo.%1[%2]</translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation>内部错误：无法求值软件包组 %1.%2</translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation>总下载大小：%1
</translation>
    </message>
    <message>
        <source>Internal error: %1 not found
</source>
        <translation>内部错误：找不到 %1
</translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation>要执行的事务：
</translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation>为解决依赖关系将执行以下操作：
</translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation>其他事务：
</translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation>废弃</translation>
    </message>
    <message>
        <source>	%1: %2
</source>
        <translation>	%1：%2
</translation>
    </message>
    <message>
        <source>	%1: %2 with %3
</source>
        <translation>	%1：%2，由 %3 取代
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
        <translation>正在下载仓库%1的镜像列表</translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list for %2</source>
        <translation>正在下载 %2 的仓库%1的镜像列表</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd</source>
        <translation>正在下载仓库%1的 repomd</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd for %2</source>
        <translation>正在下载 %2 的仓库%1的 repomd</translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation>正在下载仓库%1</translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation>正在下载 %2 的仓库%1</translation>
    </message>
    <message>
        <source>Converting repository %1</source>
        <translation>正在转换仓库%1</translation>
    </message>
    <message>
        <source>Converting repository %1 for %2</source>
        <translation>正在转换 %2 的仓库%1</translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation>正在读取仓库%1</translation>
    </message>
    <message>
        <source>Reading repository %1 for %2</source>
        <translation>正在读取 %2 的仓库%1</translation>
    </message>
    <message>
        <source>VEM Yum Error</source>
        <translation>VEM Yum 错误</translation>
    </message>
    <message>
        <source>VEM Yum Warning</source>
        <translation>VEM Yum 警告</translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation>正在解决依赖关系</translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation>内部错误：意外的 TSINFO：%1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation>内部错误：TSINFO 提到未知的软件包：%1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation>内部错误：TSINFO 提到要安装或升级似乎已是最新的软件包：%1</translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation>正在完成增量 RPM 的重建</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>正在下载 %1</translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation>正在下载 %1 的软件包头</translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation>正在准备执行事务</translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation>正在准备测试事务</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>正在更新 %1</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>正在安装 %1</translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation>正在完成更新：%1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>正在删除 %1</translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation>事务测试</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation>内部错误：无法识别 YumIO::tsCallback 的 what=%1；已忽略</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation>内部错误：无法识别 YumIO::tsEvent 的 action=%1；已忽略</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation>作为依赖被删除</translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation>作为依赖被安装</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>已更新</translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation>作为依赖被更新</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>已废弃</translation>
    </message>
    <message>
        <source>VEM Looking Only</source>
        <translation>VEM - 仅供查看</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>查看(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Loading build hosts: Total Progress</source>
        <translation>加载构建主机：总进度</translation>
    </message>
    <message>
        <source>The transaction goes on; the program ends when it has come to its end.</source>
        <translation>事务仍在继续；事务完成后程序将退出。</translation>
    </message>
    <message>
        <source>Unable to see whether a transaction was cut off</source>
        <translation>无法确定是否有事务被中断</translation>
    </message>
    <message>
        <source>Key %1: OK</source>
        <translation>密钥 %1：已确认</translation>
    </message>
    <message>
        <source>Key %1: Canceled</source>
        <translation>密钥 %1：已取消</translation>
    </message>
    <message>
        <source>Enabling module streams:
</source>
        <translation>启用模块流：
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
        <translation>无法读取列所显示的内容</translation>
    </message>
    <message>
        <source>Unable to read the changes</source>
        <translation>无法读取更改</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Reading what was fetched before</source>
        <translation>正在读取以前获取的内容</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>%1, %2 left</source>
        <translation>%1，剩余 %2</translation>
    </message>
    <message>
        <source>script of %1</source>
        <translation>%1 的脚本</translation>
    </message>
    <message>
        <source>Unable to open package files</source>
        <translation>无法打开软件包文件</translation>
    </message>
    <message>
        <source>These package files can&apos;t be used:</source>
        <translation>无法使用这些软件包文件：</translation>
    </message>
</context>
<context>
    <name>YumIOCapturers</name>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation>无法打开用于捕获 rpm 事务输出的管道</translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation>无法用 dup2 复制用于捕获 rpm 事务输出的管道</translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation>无法用 dup2 恢复 stderr</translation>
    </message>
</context>
</TS>
