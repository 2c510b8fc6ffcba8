<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>About</name>
    <message>
        <source>About Quillorent</source>
        <translation>关于 Quillorent</translation>
    </message>
    <message>
        <source>Quillorent %1</source>
        <translation>Quillorent %1</translation>
    </message>
    <message>
        <source>Makes encrypted archives of your folders, and brings them back.</source>
        <translation>将您的文件夹制成加密归档，需要时再还原。</translation>
    </message>
    <message>
        <source>© 2026 The Quillorent developers. Free software under the MIT licence: you may use, change and share it; it comes without any warranty.</source>
        <translation>© 2026 Quillorent 开发者。本程序是采用 MIT 许可证的自由软件：您可以使用、修改和分享它；不提供任何担保。</translation>
    </message>
    <message>
        <source>It stands on these libraries and their licences:</source>
        <translation>本程序使用了下列库，附各自的许可证：</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Make room on the disk of the destination, or choose another one. Then back up again.</source>
        <translation>请在目标位置所在的磁盘上腾出空间，或另选一个目标位置，然后重新备份。</translation>
    </message>
    <message>
        <source>The destination takes no files of that size. Have the archives split into files of less than 4 GB, and back up again.</source>
        <translation>目标位置不能存放这么大的文件。请将归档拆分为小于 4 GB 的文件，然后重新备份。</translation>
    </message>
    <message>
        <source>Nothing can be written to the destination any more. Connect its disk anew, or choose another one, and back up again.</source>
        <translation>目标位置已无法写入。请重新连接其磁盘，或另选一个目标位置，然后重新备份。</translation>
    </message>
    <message>
        <source>A disk does not work as it should. Check its cable, try another disk as the destination, and save what is on this one.</source>
        <translation>有磁盘工作不正常。请检查连接线，改用另一个磁盘作为目标位置，并尽快转存这个磁盘上的内容。</translation>
    </message>
    <message>
        <source>Something may not be read or written by you. Change its permissions, or take it off the list, and back up again.</source>
        <translation>有内容您无权读取或写入。请更改其权限，或将其移出列表，然后重新备份。</translation>
    </message>
    <message>
        <source>A program that the backup needs can&apos;t be started. The Tools tab shows which one and lets you choose it.</source>
        <translation>备份所需的一个程序无法启动。“工具”页面会显示是哪一个，并可在那里选择它。</translation>
    </message>
    <message>
        <source>Back up again. If it fails again, the messages of the tools tell more (Show messages, on the Tools tab).</source>
        <translation>请重新备份。如果再次失败，“显示消息”按钮给出的工具原始消息会提供更多信息。</translation>
    </message>
</context>
<context>
    <name>ChoicePanel</name>
    <message>
        <source>Question</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>What is to be decided</source>
        <translation>需要决定的事项</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Backs up folders into encrypted archives, and brings them back. Opens a window;
quillorent-run does the same without one.</source>
        <translation>将文件夹备份为加密归档，并可还原。会打开一个窗口；
quillorent-run 无需窗口即可完成同样的工作。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>显示本帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Archives to bring back.</source>
        <translation>要还原的归档。</translation>
    </message>
    <message>
        <source>[archive...]</source>
        <translation>[归档...]</translation>
    </message>
    <message>
        <source>Open this page: %1.</source>
        <translation>打开此页面：%1。</translation>
    </message>
    <message>
        <source>page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>没有选项“%1”。</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>没有页面“%1”。</translation>
    </message>
</context>
<context>
    <name>ConcernsPanel01</name>
    <message>
        <source>Before it begins</source>
        <translation>开始之前</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Please read this before you go on:</source>
        <translation>继续之前，请先阅读以下内容：</translation>
    </message>
    <message>
        <source>What to think of before it begins</source>
        <translation>开始之前需要考虑的事项</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Go on anyway</source>
        <translation>仍然继续(&amp;G)</translation>
    </message>
</context>
<context>
    <name>ConsolePanel01</name>
    <message>
        <source>Messages of the last run</source>
        <translation>上次任务的消息</translation>
    </message>
    <message>
        <source>What the last run reported</source>
        <translation>上次任务报告的内容</translation>
    </message>
    <message>
        <source>The last run had nothing to report.</source>
        <translation>上次任务没有需要报告的内容。</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清空(&amp;L)</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>复制(&amp;P)</translation>
    </message>
    <message>
        <source>Copy the whole text</source>
        <translation>复制全部文本</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ContentsPanel01</name>
    <message>
        <source>Single files and folders</source>
        <translation>单个文件和文件夹</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>Part of a name; Return goes to the next one</source>
        <translation>名称的一部分；按回车键转到下一个</translation>
    </message>
    <message>
        <source>What the archive holds</source>
        <translation>归档中的内容</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restore what is chosen</source>
        <translation>还原所选内容(&amp;R)</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>显示窗口</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
</context>
<context>
    <name>ExtractPanel01</name>
    <message>
        <source>An archive failed its test</source>
        <translation>有归档未通过检查</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Nothing was extracted, because this archive is not whole:</source>
        <translation>未提取任何内容，因为这个归档不完整：</translation>
    </message>
    <message>
        <source>The archive that failed its test</source>
        <translation>未通过检查的归档</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>返回(&amp;B)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quillorent[*]</source>
        <translation>Quillorent[*]</translation>
    </message>
    <message>
        <source>Pro&amp;file</source>
        <translation>方案(&amp;F)</translation>
    </message>
    <message>
        <source>The profile to load; loading makes it the one in use</source>
        <translation>要载入的方案；载入后即开始使用</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>载入(&amp;L)</translation>
    </message>
    <message>
        <source>Use the chosen profile</source>
        <translation>使用所选方案</translation>
    </message>
    <message>
        <source>Make a new profile</source>
        <translation>建立一个新方案</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新建方案</translation>
    </message>
    <message>
        <source>Make another profile from the chosen one</source>
        <translation>以所选方案为样本另建一个方案</translation>
    </message>
    <message>
        <source>Duplicate the profile</source>
        <translation>复制方案</translation>
    </message>
    <message>
        <source>Give the chosen profile another name</source>
        <translation>为所选方案改名</translation>
    </message>
    <message>
        <source>Rename the profile</source>
        <translation>重命名方案</translation>
    </message>
    <message>
        <source>Delete the chosen profile</source>
        <translation>删除所选方案</translation>
    </message>
    <message>
        <source>Delete the profile</source>
        <translation>删除方案</translation>
    </message>
    <message>
        <source>Loading or saving profiles</source>
        <translation>正在载入或保存方案</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>正在使用：</translation>
    </message>
    <message>
        <source>Save all profiles</source>
        <translation>保存所有方案</translation>
    </message>
    <message>
        <source>Options…</source>
        <translation>选项…</translation>
    </message>
    <message>
        <source>How this profile encrypts, and what the program does by itself</source>
        <translation>此方案的加密方式，以及程序自动执行的操作</translation>
    </message>
    <message>
        <source>&amp;Back up</source>
        <translation>备份(&amp;B)</translation>
    </message>
    <message>
        <source>Folders and files to bac&amp;k up</source>
        <translation>要备份的文件夹和文件(&amp;K)</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>撤销(&amp;N)</translation>
    </message>
    <message>
        <source>Put back what was removed from the list (Ctrl+Z)</source>
        <translation>放回刚从列表中移除的项目（Ctrl+Z）</translation>
    </message>
    <message>
        <source>Folders and files to back up</source>
        <translation>要备份的文件夹和文件</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>Add folders and files to the list</source>
        <translation>将文件夹和文件添加到列表</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the folders themselves stay (Delete)</source>
        <translation>将选中的项目移出列表；文件夹本身不受影响（Delete）</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>备份到</translation>
    </message>
    <message>
        <source>Choose where the archives go</source>
        <translation>请选择归档的存放位置</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>选择目标文件夹</translation>
    </message>
    <message>
        <source>Protected by</source>
        <translation>保护方式</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>更改(&amp;G)…</translation>
    </message>
    <message>
        <source>Go to the passwords</source>
        <translation>转到密码</translation>
    </message>
    <message>
        <source>Change the protection</source>
        <translation>更改保护方式</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>归档</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>Show or hide how the archives are made</source>
        <translation>显示或隐藏归档的制作方式</translation>
    </message>
    <message>
        <source>Details of the archives</source>
        <translation>归档的详细信息</translation>
    </message>
    <message>
        <source>Spl&amp;it each archive into files of</source>
        <translation>拆分归档，每个文件不超过(&amp;I)</translation>
    </message>
    <message>
        <source>Make several files of this size, called volumes, instead of one large one: for discs, or for places that take no large files. All of them are needed to restore</source>
        <translation>将一个大归档制成多个这种大小的文件（称为分卷）：适合光盘，或不能存放大文件的地方。还原时需要全部分卷</translation>
    </message>
    <message>
        <source>Largest size of a file</source>
        <translation>单个文件的最大大小</translation>
    </message>
    <message>
        <source>With its unit, such as 700 MB or 4.7 GB; a number alone means MB</source>
        <translation>请带上单位，例如 700 MB 或 4.7 GB；只写数字表示 MB</translation>
    </message>
    <message>
        <source>Largest size of a file, arrows</source>
        <translation>单个文件的最大大小，箭头按钮</translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation>常用大小</translation>
    </message>
    <message>
        <source>Make them smaller before encrypting</source>
        <translation>加密前先压缩</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>能使文档、邮件等内容的归档小很多；但归档的大小会因此透露少许内容信息</translation>
    </message>
    <message>
        <source>Found by packing samples of what is on the list</source>
        <translation>根据列表中内容的样本压缩结果估算</translation>
    </message>
    <message>
        <source>Date archives like their newe&amp;st file</source>
        <translation>归档日期与其中最新的文件一致(&amp;S)</translation>
    </message>
    <message>
        <source>Without this, an archive has the date of the backup</source>
        <translation>不选中时，归档的日期就是备份的日期</translation>
    </message>
    <message>
        <source>Date the encrypted file in them the same way</source>
        <translation>归档内的加密文件也采用同样的日期</translation>
    </message>
    <message>
        <source>How the last backup ended</source>
        <translation>上次备份的结果</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>打开文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>Show the archives in the file manager</source>
        <translation>在文件管理器中显示归档</translation>
    </message>
    <message>
        <source>Try a restore</source>
        <translation>试着还原</translation>
    </message>
    <message>
        <source>Only what came back is a backup: bring something back while you still have it</source>
        <translation>能还原的才算备份：请趁原件还在，试着还原一些内容</translation>
    </message>
    <message>
        <source>Back &amp;up now</source>
        <translation>立即备份(&amp;U)</translation>
    </message>
    <message>
        <source>R&amp;estore</source>
        <translation>还原(&amp;E)</translation>
    </message>
    <message>
        <source>Backups found</source>
        <translation>找到的备份</translation>
    </message>
    <message>
        <source>To be bro&amp;ught back</source>
        <translation>要还原的归档(&amp;U)</translation>
    </message>
    <message>
        <source>Archives to be brought back</source>
        <translation>要还原的归档</translation>
    </message>
    <message>
        <source>Add archives from anywhere; of one in several parts the first is enough</source>
        <translation>从任意位置添加归档；分成几部分的归档只需选择第一部分</translation>
    </message>
    <message>
        <source>Sin&amp;gle files…</source>
        <translation>单个文件(&amp;G)…</translation>
    </message>
    <message>
        <source>See what the selected archive holds, and bring back only what you choose of it</source>
        <translation>查看选中的归档包含哪些内容，并只还原其中您选择的部分</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Take the selected archives off the list; the files themselves stay (Delete)</source>
        <translation>将选中的归档移出列表；文件本身不受影响（Delete）</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>Take all archives off the list</source>
        <translation>将所有归档移出列表</translation>
    </message>
    <message>
        <source>To look for single files, the whole archive has to be decrypted: that needs the password, and about as long as bringing back all of it.</source>
        <translation>要查找单个文件，必须解密整个归档：这需要密码，所用时间与还原全部内容差不多。</translation>
    </message>
    <message>
        <source>&amp;Into folder</source>
        <translation>还原到(&amp;I)</translation>
    </message>
    <message>
        <source>Choose where the contents go</source>
        <translation>请选择内容的存放位置</translation>
    </message>
    <message>
        <source>Use ~/Restored</source>
        <translation>使用 ~/Restored</translation>
    </message>
    <message>
        <source>A folder of the name &quot;Restored&quot; in your home folder; it is made if it isn&apos;t there yet</source>
        <translation>主文件夹中名为“Restored”的文件夹；如果不存在则会新建</translation>
    </message>
    <message>
        <source>Use the folder &quot;Restored&quot; in your home folder</source>
        <translation>使用主文件夹中的“Restored”文件夹</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>选择(&amp;S)…</translation>
    </message>
    <message>
        <source>Choose the folder that everything goes to</source>
        <translation>选择存放所有内容的文件夹</translation>
    </message>
    <message>
        <source>H&amp;ow it is encrypted</source>
        <translation>加密方式(&amp;O)</translation>
    </message>
    <message>
        <source>With the password, by AES</source>
        <translation>使用密码（AES）</translation>
    </message>
    <message>
        <source>With the password, by Blowfish</source>
        <translation>使用密码（Blowfish）</translation>
    </message>
    <message>
        <source>With the password, by Triple DES</source>
        <translation>使用密码（Triple DES）</translation>
    </message>
    <message>
        <source>For a certificate, by S/MIME</source>
        <translation>使用证书（S/MIME）</translation>
    </message>
    <message>
        <source>Automatic: as the archive&apos;s name tells</source>
        <translation>自动：根据归档名称判断</translation>
    </message>
    <message>
        <source>How bringing back ended last time</source>
        <translation>上次还原的结果</translation>
    </message>
    <message>
        <source>Open fol&amp;der</source>
        <translation>打开文件夹(&amp;D)</translation>
    </message>
    <message>
        <source>Show what was brought back, in the file manager</source>
        <translation>在文件管理器中显示还原的内容</translation>
    </message>
    <message>
        <source>Restore &amp;now</source>
        <translation>立即还原(&amp;N)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密码(&amp;W)</translation>
    </message>
    <message>
        <source>Protect arch&amp;ives with</source>
        <translation>归档保护方式(&amp;I)</translation>
    </message>
    <message>
        <source>Typed password</source>
        <translation>输入的密码</translation>
    </message>
    <message>
        <source>Password from the keychain</source>
        <translation>密钥环中的密码</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>证书</translation>
    </message>
    <message>
        <source>Passwor&amp;d</source>
        <translation>密码(&amp;D)</translation>
    </message>
    <message>
        <source>Password, hidden</source>
        <translation>密码，已隐藏</translation>
    </message>
    <message>
        <source>Password, shown</source>
        <translation>密码，已显示</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>再输一次(&amp;M)</translation>
    </message>
    <message>
        <source>Where no archive is there yet that tells a mistyped password</source>
        <translation>仅在没有可供核对密码的旧归档时需要</translation>
    </message>
    <message>
        <source>Password, once more</source>
        <translation>再次输入密码</translation>
    </message>
    <message>
        <source>Hide the p&amp;assword</source>
        <translation>隐藏密码(&amp;A)</translation>
    </message>
    <message>
        <source>The two differ: one of them is mistyped.</source>
        <translation>两次输入的密码不同：其中有一个输错了。</translation>
    </message>
    <message>
        <source>The keychain is where your desktop keeps passwords; your log-in opens it. Fetch takes the password out of it, Store puts it in. It is lost together with your account: write it down all the same.</source>
        <translation>密钥环是桌面环境保存密码的地方，随您登录而解锁。“获取”从中取出密码，“存储”将密码放入其中。您的登录账户一旦丢失，其中的密码也随之丢失：因此仍请把密码写下来。</translation>
    </message>
    <message>
        <source>Acco&amp;unt</source>
        <translation>账户(&amp;U)</translation>
    </message>
    <message>
        <source>The name that the keychain keeps the password under</source>
        <translation>密码在密钥环中保存时所用的名称</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>获取(&amp;C)</translation>
    </message>
    <message>
        <source>Fetch this account&apos;s password from the keychain</source>
        <translation>从密钥环获取此账户的密码</translation>
    </message>
    <message>
        <source>Password of the keychain, hidden</source>
        <translation>密钥环的密码，已隐藏</translation>
    </message>
    <message>
        <source>Password of the keychain, shown</source>
        <translation>密钥环的密码，已显示</translation>
    </message>
    <message>
        <source>&amp;Store</source>
        <translation>存储(&amp;S)</translation>
    </message>
    <message>
        <source>Store the password in the keychain; one that is there already is never replaced</source>
        <translation>将密码存入密钥环；已有的密码绝不会被替换</translation>
    </message>
    <message>
        <source>Hide this p&amp;assword</source>
        <translation>隐藏此密码(&amp;A)</translation>
    </message>
    <message>
        <source>Asking the keychain</source>
        <translation>正在询问密钥环</translation>
    </message>
    <message>
        <source>U&amp;nlock…</source>
        <translation>解锁(&amp;N)…</translation>
    </message>
    <message>
        <source>Let the keychain ask for its password</source>
        <translation>让密钥环询问它的密码</translation>
    </message>
    <message>
        <source>Careful: the text that counts is not the one you see here. The switch &quot;Hide the password&quot; of the typed password decides between the hidden and the shown text; set it like the one above, on the page &quot;Typed password&quot;.</source>
        <translation>注意：真正起作用的并不是您在这里看到的文字。隐藏文字与显示文字中用哪一个，由输入密码的开关“隐藏密码”决定；请在“输入的密码”页面上，将它设为与上方的开关一致。</translation>
    </message>
    <message>
        <source>Certific&amp;ate</source>
        <translation>证书(&amp;A)</translation>
    </message>
    <message>
        <source>The certificate of whoever is to open the archives</source>
        <translation>归档接收方（将来打开归档的人）的证书</translation>
    </message>
    <message>
        <source>Choose the certificate</source>
        <translation>选择证书</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>显示(&amp;S)</translation>
    </message>
    <message>
        <source>Show the certificate as text, among the messages</source>
        <translation>在消息中以文本形式显示证书</translation>
    </message>
    <message>
        <source>Show the certificate</source>
        <translation>显示证书</translation>
    </message>
    <message>
        <source>Private &amp;key</source>
        <translation>私钥(&amp;K)</translation>
    </message>
    <message>
        <source>Needed to restore only; the file that belongs to the certificate</source>
        <translation>仅还原时需要；与证书配对的文件</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>选择私钥</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show the private key as text, among the messages, where everybody can read it</source>
        <translation>在消息中以文本形式显示私钥，任何人都能看到</translation>
    </message>
    <message>
        <source>Show the private key</source>
        <translation>显示私钥</translation>
    </message>
    <message>
        <source>Two files instead of a password: the certificate locks, and only the private key that belongs to it opens. Backups need the certificate alone.</source>
        <translation>用两个文件代替密码：证书用来上锁，只有与之配对的私钥才能打开。备份只需要证书。</translation>
    </message>
    <message>
        <source>Without this password, or the private key that belongs to the certificate, nobody can open the archives, you included.</source>
        <translation>没有此密码，或没有与证书配对的私钥，任何人都无法打开归档，包括您自己。</translation>
    </message>
    <message>
        <source>S&amp;ynchronise</source>
        <translation>同步(&amp;Y)</translation>
    </message>
    <message>
        <source>Folders and files to synchronise</source>
        <translation>要同步的文件夹和文件</translation>
    </message>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>添加要同步的文件夹和文件</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the files themselves stay (Delete)</source>
        <translation>将选中的项目移出列表；文件本身不受影响（Delete）</translation>
    </message>
    <message>
        <source>Remove entries from synchronisation</source>
        <translation>将项目移出同步列表</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Kept with the profile; what is copied is the list above</source>
        <translation>随方案保存；实际复制的是上面列表中的内容</translation>
    </message>
    <message>
        <source>For your notes; what is copied is the list above</source>
        <translation>供您备注用；实际复制的是上面列表中的内容</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>选择源文件夹</translation>
    </message>
    <message>
        <source>&amp;Destination</source>
        <translation>目标位置(&amp;D)</translation>
    </message>
    <message>
        <source>Choose or type the folder that the files go to</source>
        <translation>请选择或输入文件要复制到的文件夹</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>选择同步的目标位置</translation>
    </message>
    <message>
        <source>On a server</source>
        <translation>在服务器上</translation>
    </message>
    <message>
        <source>The destination is a folder on another computer, reached over an encrypted connection (ssh)</source>
        <translation>目标位置是另一台计算机上的文件夹，通过加密连接（ssh）访问</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>用户(&amp;U)</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较方式</translation>
    </message>
    <message>
        <source>By date; what is newer at the destination stays</source>
        <translation>按日期；目标位置上较新的文件保留不变</translation>
    </message>
    <message>
        <source>By content; every file is read</source>
        <translation>按内容；读取每个文件</translation>
    </message>
    <message>
        <source>Deletion</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete at the dest&amp;ination what is not here</source>
        <translation>删除目标位置上此处没有的内容(&amp;I)</translation>
    </message>
    <message>
        <source>Inside the listed folders only</source>
        <translation>仅限列表中的文件夹内部</translation>
    </message>
    <message>
        <source>Remove files here once they are at the destination</source>
        <translation>文件到达目标位置后，从此处删除</translation>
    </message>
    <message>
        <source>This moves the files instead of copying them</source>
        <translation>这样会移动文件，而不是复制</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>How the last synchronisation ended</source>
        <translation>上次同步的结果</translation>
    </message>
    <message>
        <source>Preview…</source>
        <translation>预览…</translation>
    </message>
    <message>
        <source>Show what would be copied and deleted; nothing is changed</source>
        <translation>显示将会复制和删除的内容；不做任何更改</translation>
    </message>
    <message>
        <source>Synchronise &amp;now</source>
        <translation>立即同步(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>Programs that do the work. Press Choose, or double-click a path to change it.</source>
        <translation>实际执行操作的程序。按“选择”按钮，或双击路径，即可更改。</translation>
    </message>
    <message>
        <source>External tools</source>
        <translation>外部工具</translation>
    </message>
    <message>
        <source>Saving settings</source>
        <translation>正在保存设置</translation>
    </message>
    <message>
        <source>Save settin&amp;gs</source>
        <translation>保存设置(&amp;G)</translation>
    </message>
    <message>
        <source>Save the paths of the tools and the other settings, and check the tools again</source>
        <translation>保存工具路径和其他设置，并重新检查工具</translation>
    </message>
    <message>
        <source>Show &amp;messages</source>
        <translation>显示消息(&amp;M)</translation>
    </message>
    <message>
        <source>What the programs said in the last run, where something failed</source>
        <translation>上次任务出错时，各程序给出的消息</translation>
    </message>
    <message>
        <source>Programs that are still at work</source>
        <translation>仍在运行的程序</translation>
    </message>
    <message>
        <source>End them</source>
        <translation>全部结束</translation>
    </message>
    <message>
        <source>End the programs that a failed run has left at work</source>
        <translation>结束失败的任务遗留下来、仍在运行的程序</translation>
    </message>
    <message>
        <source>Files that are not encrypted</source>
        <translation>未加密的文件</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>全部删除</translation>
    </message>
    <message>
        <source>Remove these files; the folders that they were made from stay</source>
        <translation>删除这些文件；生成它们的原文件夹不受影响</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>方案(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>任务(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>新建(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>复制(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>删除(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Load the chosen profile</source>
        <translation>载入所选方案(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save all profiles</source>
        <translation>保存所有方案(&amp;S)</translation>
    </message>
    <message>
        <source>Open this profile at start-&amp;up</source>
        <translation>启动时打开此方案(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Options…</source>
        <translation>选项(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>立即备份(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Restore now</source>
        <translation>立即还原(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Synchronise now</source>
        <translation>立即同步(&amp;S)</translation>
    </message>
    <message>
        <source>Show what synchronising would &amp;do…</source>
        <translation>显示同步将执行的操作(&amp;D)…</translation>
    </message>
    <message>
        <source>S&amp;top…</source>
        <translation>停止(&amp;T)…</translation>
    </message>
    <message>
        <source>Add &amp;folders to back up…</source>
        <translation>添加要备份的文件夹(&amp;F)…</translation>
    </message>
    <message>
        <source>Add &amp;archives to restore…</source>
        <translation>添加要还原的归档(&amp;A)…</translation>
    </message>
    <message>
        <source>Save settings and &amp;check the programs</source>
        <translation>保存设置并检查程序(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>同步(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Messages of the last run</source>
        <translation>上次任务的消息(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Recovery without this program</source>
        <translation>不用本程序恢复数据(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;About Quillorent</source>
        <translation>关于 Quillorent(&amp;A)</translation>
    </message>
    <message>
        <source>A backup needs more room than its archives do in the end: what is packed and what is encrypted lie here side by side for a while, together about two and a half times as much as the folder</source>
        <translation>备份所需的空间比最终的归档更多：打包的和加密的文件会在此处同时存在一段时间，合计约为文件夹的两倍半</translation>
    </message>
    <message>
        <source>Of an archive that was made in several parts, the first one is enough; the others only have to be in the same folder</source>
        <translation>分成几部分的归档，只需选择第一部分；其余部分只要在同一文件夹中即可</translation>
    </message>
    <message>
        <source>The name of an archive tells how it was encrypted; choose it here only where an archive was renamed. AES, Blowfish and Triple DES are ways to do it with a password; S/MIME is the way to do it for a certificate, and takes the private key that belongs to it. Both are chosen where passwords are.</source>
        <translation>归档的名称表明其加密方式；仅在归档被改名后才需要在此选择。AES、Blowfish 和 Triple DES 都是用密码加密的方式；S/MIME 是用证书加密的方式，需要与证书配对的私钥。密码或证书请在“密码”页面选择。</translation>
    </message>
</context>
<context>
    <name>MessagePanel</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>出了什么问题</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>NamePanel</name>
    <message>
        <source>Profile</source>
        <translation>方案</translation>
    </message>
    <message>
        <source>New &amp;name</source>
        <translation>新名称(&amp;N)</translation>
    </message>
    <message>
        <source>Begin with my &amp;usual folders (documents, pictures, desktop)</source>
        <translation>从我的常用文件夹开始（文档、图片、桌面）(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>now: the last one of the list</source>
        <translation>当前：列表中的最后一个</translation>
    </message>
    <message>
        <source>now: %1</source>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>Can&apos;t start</source>
        <translation>无法开始</translation>
    </message>
    <message>
        <source>Certificate not accepted</source>
        <translation>证书未被接受</translation>
    </message>
    <message>
        <source>Private key not accepted</source>
        <translation>私钥未被接受</translation>
    </message>
    <message>
        <source>Can&apos;t save</source>
        <translation>无法保存</translation>
    </message>
    <message>
        <source>Settings and profiles</source>
        <translation>设置和方案</translation>
    </message>
    <message>
        <source>Programs are missing</source>
        <translation>缺少程序</translation>
    </message>
    <message>
        <source>Changed by others, too</source>
        <translation>其他程序也做了更改</translation>
    </message>
    <message>
        <source>&amp;Save what I changed</source>
        <translation>保存我的更改(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Take what is in the file</source>
        <translation>采用文件中的内容(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save a copy...</source>
        <translation>保存副本(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit without saving</source>
        <translation>退出而不保存(&amp;Q)</translation>
    </message>
    <message>
        <source>Rename a profile</source>
        <translation>重命名方案</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新建方案</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>创建(&amp;R)</translation>
    </message>
    <message>
        <source>Duplicate a profile</source>
        <translation>复制方案</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>复制(&amp;U)</translation>
    </message>
    <message>
        <source>The two are independent of each other once the profiles are saved and the program is started again. Until then a change in one is a change in both.</source>
        <translation>保存方案并重新启动程序后，两者便相互独立。在此之前，更改其中一个，另一个也会随之改变。</translation>
    </message>
    <message>
        <source>Name not accepted</source>
        <translation>名称不可用</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel01</name>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>此方案</translation>
    </message>
    <message>
        <source>With a pass&amp;word, encrypt by</source>
        <translation>用密码加密时采用(&amp;W)</translation>
    </message>
    <message>
        <source>AES is the right one; the others are there for whoever must open the archives with old programs</source>
        <translation>应选 AES；其他方式仅供必须用旧程序打开归档的人使用</translation>
    </message>
    <message>
        <source>AES, 256 bits (recommended)</source>
        <translation>AES，256 位（推荐）</translation>
    </message>
    <message>
        <source>Blowfish (old)</source>
        <translation>Blowfish（旧）</translation>
    </message>
    <message>
        <source>Triple DES (old)</source>
        <translation>Triple DES（旧）</translation>
    </message>
    <message>
        <source>With a ce&amp;rtificate, encrypt by</source>
        <translation>用证书加密时采用(&amp;R)</translation>
    </message>
    <message>
        <source>S/MIME is the standard by which mail is encrypted for a certificate; other programs can open it</source>
        <translation>S/MIME 是用证书加密邮件的标准；其他程序也能打开</translation>
    </message>
    <message>
        <source>AES, 256 bits, as in mail (S/MIME)</source>
        <translation>AES，256 位，与邮件相同（S/MIME）</translation>
    </message>
    <message>
        <source>Compress before encryptin&amp;g</source>
        <translation>加密前先压缩(&amp;G)</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>能使文档、邮件等内容的归档小很多；但归档的大小会因此透露少许内容信息</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask when the destination is not empty</source>
        <translation>目标位置不为空时不询问(&amp;D)</translation>
    </message>
    <message>
        <source>Archives of the same name are replaced without a question</source>
        <translation>同名归档将直接被替换，不再询问</translation>
    </message>
    <message>
        <source>The program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Open this profile at &amp;start-up</source>
        <translation>启动时打开此方案(&amp;S)</translation>
    </message>
    <message>
        <source>Save, and open the profile in use when the program starts</source>
        <translation>保存，并在程序启动时打开当前使用的方案</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save changes when &amp;quitting</source>
        <translation>退出时保存更改(&amp;Q)</translation>
    </message>
    <message>
        <source>Without this, the program asks before changes that were not saved are lost</source>
        <translation>不选中时，在未保存的更改丢失之前，程序会先询问</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version at each start</source>
        <translation>每次启动时检查是否有新版本(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Programs that do the work…</source>
        <translation>执行操作的程序(&amp;P)…</translation>
    </message>
    <message>
        <source>Which archiver, encryption tool and copying tool are used, and whether they are in order</source>
        <translation>使用哪些归档、加密和复制工具，以及它们是否正常</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>PreviewPanel01</name>
    <message>
        <source>What would be copied and deleted</source>
        <translation>将会复制和删除的内容</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>同步(&amp;S)</translation>
    </message>
    <message>
        <source>Do what is shown</source>
        <translation>执行所显示的操作</translation>
    </message>
</context>
<context>
    <name>ProfilePanel04</name>
    <message>
        <source>Delete a profile</source>
        <translation>删除方案</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>要删除此方案吗？</translation>
    </message>
    <message>
        <source>Folders and archives stay as they are; only the list of folders and the options are gone, for good once the profiles are saved.</source>
        <translation>文件夹和归档保持原样；只删除文件夹列表和选项，保存方案后便无法恢复。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Time: %1</source>
        <translation>用时：%1</translation>
    </message>
    <message>
        <source>read: %1</source>
        <translation>已读取：%1</translation>
    </message>
    <message>
        <source>more at the destination: %1</source>
        <translation>目标位置增加：%1</translation>
    </message>
</context>
<context>
    <name>ProgressFigures</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>ProgressPanel01</name>
    <message>
        <source>Backup</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>正在备份…</translation>
    </message>
    <message>
        <source>Measuring the folders…</source>
        <translation>正在统计文件夹大小…</translation>
    </message>
    <message>
        <source>Progress of the backup</source>
        <translation>备份进度</translation>
    </message>
    <message>
        <source>Folders and how far they are</source>
        <translation>各文件夹及其进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop the backup; archives that are finished stay</source>
        <translation>停止备份；已完成的归档会保留</translation>
    </message>
</context>
<context>
    <name>ProgressPanel02</name>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Progress of restoring</source>
        <translation>还原进度</translation>
    </message>
    <message>
        <source>Archives and how far they are</source>
        <translation>各归档及其进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop; what is restored already stays, and is not complete</source>
        <translation>停止；已还原的内容会保留，但不完整</translation>
    </message>
</context>
<context>
    <name>ProgressPanel03</name>
    <message>
        <source>Synchronisation</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>The synchronisation goes on</source>
        <translation>同步正在进行</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop; what is copied already stays</source>
        <translation>停止；已复制的内容会保留</translation>
    </message>
</context>
<context>
    <name>Protection</name>
    <message>
        <source>Typed password</source>
        <translation>输入的密码</translation>
    </message>
    <message>
        <source>Password from the keychain – please look at the Password tab</source>
        <translation>密钥环中的密码 – 请查看“密码”标签页</translation>
    </message>
    <message>
        <source>Password from the keychain – no account chosen yet</source>
        <translation>密钥环中的密码 – 尚未选择账户</translation>
    </message>
    <message>
        <source>Password from the keychain – not fetched yet</source>
        <translation>密钥环中的密码 – 尚未获取</translation>
    </message>
    <message>
        <source>Password typed for the keychain – not stored in it</source>
        <translation>为密钥环输入的密码 – 尚未存入</translation>
    </message>
    <message>
        <source>Password from the keychain, account %1</source>
        <translation>密钥环中的密码，账户 %1</translation>
    </message>
    <message>
        <source>Certificate – none chosen yet</source>
        <translation>证书 – 尚未选择</translation>
    </message>
    <message>
        <source>Certificate: %1</source>
        <translation>证书：%1</translation>
    </message>
    <message>
        <source>Password – none typed yet</source>
        <translation>密码 – 尚未输入</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
</context>
<context>
    <name>StopQuestion</name>
    <message>
        <source>Synchronisation in progress</source>
        <translation>正在同步</translation>
    </message>
    <message>
        <source>Folders are being synchronised.</source>
        <translation>正在同步文件夹。</translation>
    </message>
    <message>
        <source>Stop the synchronisation?</source>
        <translation>要停止同步吗？</translation>
    </message>
    <message>
        <source>What is copied already stays, and the next run goes on from there.</source>
        <translation>已复制的内容会保留，下次任务将从中断处继续。</translation>
    </message>
    <message>
        <source>Restoring in progress</source>
        <translation>正在还原</translation>
    </message>
    <message>
        <source>Files are being restored.</source>
        <translation>正在还原文件。</translation>
    </message>
    <message>
        <source>Stop restoring?</source>
        <translation>要停止还原吗？</translation>
    </message>
    <message>
        <source>What is restored already stays, and is not complete.</source>
        <translation>已还原的内容会保留，但不完整。</translation>
    </message>
    <message>
        <source>Backup in progress</source>
        <translation>正在备份</translation>
    </message>
    <message>
        <source>A backup is running.</source>
        <translation>正在进行备份。</translation>
    </message>
    <message>
        <source>Stop the backup?</source>
        <translation>要停止备份吗？</translation>
    </message>
    <message>
        <source>Archives that are finished stay. Folders that are not finished keep the archive of the backup before this one.</source>
        <translation>已完成的归档会保留。未完成的文件夹保留上一次备份的归档。</translation>
    </message>
    <message>
        <source>Quitting stops that. %1</source>
        <translation>退出将使其停止。%1</translation>
    </message>
    <message>
        <source>&amp;Stop and quit</source>
        <translation>停止并退出(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keep running</source>
        <translation>继续运行(&amp;K)</translation>
    </message>
    <message>
        <source>Looking into an archive</source>
        <translation>正在查看归档</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>正在查看归档的内容。</translation>
    </message>
    <message>
        <source>Stop looking into the archive?</source>
        <translation>停止查看归档吗？</translation>
    </message>
    <message>
        <source>Nothing of yours has been changed.</source>
        <translation>您的文件没有任何改变。</translation>
    </message>
</context>
<context>
    <name>UpdatePanel01</name>
    <message>
        <source>A newer version</source>
        <translation>有新版本</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>新版本的变化</translation>
    </message>
    <message>
        <source>Its makers say nothing of what is new.</source>
        <translation>开发者没有说明有哪些变化。</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>以后(&amp;L)</translation>
    </message>
    <message>
        <source>Open the &amp;download page</source>
        <translation>打开下载页面(&amp;D)</translation>
    </message>
</context>
<context>
    <name>WarningPanel02</name>
    <message>
        <source>The extraction folder is not empty</source>
        <translation>提取文件夹不为空</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>The extraction folder is not empty:</source>
        <translation>提取文件夹不为空：</translation>
    </message>
    <message>
        <source>Extraction folder</source>
        <translation>提取文件夹</translation>
    </message>
    <message>
        <source>Files of the same name and place are replaced, others stay as they are.</source>
        <translation>位置和名称相同的文件会被替换，其他文件保持原样。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Extract anyway</source>
        <translation>仍然提取(&amp;E)</translation>
    </message>
</context>
<context>
    <name>WarningPanel03</name>
    <message>
        <source>The destination is not empty</source>
        <translation>目标位置不为空</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>The destination folder is not empty:</source>
        <translation>目标文件夹不为空：</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>目标文件夹</translation>
    </message>
    <message>
        <source>What is there</source>
        <translation>现有内容</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Back up anyway</source>
        <translation>仍然备份(&amp;B)</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Easy to guess. Five or six words that have nothing to do with each other are better.</source>
        <translation>容易猜到。用五六个互不相干的词更好。</translation>
    </message>
    <message>
        <source>Hard to guess. One more word makes it strong.</source>
        <translation>不易猜到。再加一个词会很牢固。</translation>
    </message>
    <message>
        <source>Very hard to guess. Is it written down in a safe place? A mistyped or forgotten password is a lost backup.</source>
        <translation>极难猜到。是否已写下来并放在安全的地方？密码一旦输错或忘记，备份就没用了。</translation>
    </message>
    <message>
        <source>Use “%1”, which is chosen but not in use yet</source>
        <translation>使用“%1”，它已选中但尚未启用</translation>
    </message>
    <message>
        <source>Use the chosen profile; it is in use already</source>
        <translation>使用所选方案；它已在使用中</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>today at %1</source>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <translation>昨天 %1</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>%1 %2</translation>
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
</context>
<context>
    <name>Words</name>
    <message>
        <source>The program has been moved. Its own tools are used from where they are now, in “%1”: %2.</source>
        <translation>程序已被移动。现在使用“%1”中的自带工具：%2。</translation>
    </message>
</context>
<context>
    <name>app</name>
    <message>
        <source>%1 of %2 programs that do the work are missing or wrong. The Tools tab shows which: choose the right program there, or install it.</source>
        <translation>%2 个执行操作的程序中，有 %1 个缺失或不正确。“工具”标签页会显示是哪些：请在那里选择正确的程序，或安装它。</translation>
    </message>
    <message>
        <source>Still at work: %1.</source>
        <translation>仍在运行：%1。</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… 以及另外 %1 个。</translation>
    </message>
    <message>
        <source>Files are being restored, and would not be complete.</source>
        <translation>正在还原文件，若此时中断，文件将不完整。</translation>
    </message>
    <message>
        <source>Folders are being synchronised, and would not be in step.</source>
        <translation>正在同步文件夹，若此时中断，内容将不同步。</translation>
    </message>
    <message>
        <source>A backup is running, and would not be complete.</source>
        <translation>正在进行备份，若此时中断，备份将不完整。</translation>
    </message>
    <message>
        <source>Cancelled before anything was done.</source>
        <translation>已取消，未做任何操作。</translation>
    </message>
    <message>
        <source>Another profile was opened while the keychain was asked. Start again.</source>
        <translation>询问密钥环期间打开了另一个方案。请重新开始。</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be read:
%2
Their file stays as it is. Repair it, or move it away: the next start makes a new one.</source>
        <translation>无法读取%1：
%2
其文件保持原样。请修复该文件，或将其移走：下次启动时会新建一个。</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>方案</translation>
    </message>
    <message>
        <source>Something is running already, or about to end. Try again when it has ended.</source>
        <translation>已有任务正在进行，或即将结束。请在它结束后重试。</translation>
    </message>
    <message>
        <source>A run that was broken off has left this, and it is not encrypted:
%1</source>
        <translation>被中断的任务遗留了以下文件，且未加密：
%1</translation>
    </message>
    <message>
        <source>Something is running just now. Remove these files when it has ended.</source>
        <translation>有任务正在进行。请在它结束后再删除这些文件。</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>正在查看归档的内容。</translation>
    </message>
</context>
<context>
    <name>backup</name>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while: the backup will fail. Rename it.</source>
        <translation>“%1”是文件夹，而任务需要暂时使用同名文件：备份将会失败。请为它改名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It may be yours, or left in clear by a run that was interrupted. It will be called &quot;%2&quot;, and stay.</source>
        <translation>“%1”已经存在，而任务需要暂时使用这个名称。它可能是您的文件，也可能是被中断的任务遗留的未加密文件。它将改名为“%2”并保留下来。</translation>
    </message>
    <message>
        <source>These archives are in &quot;%1&quot; and will be replaced, other files stay: %2.</source>
        <translation>“%1”中的这些归档将被替换，其他文件保持原样：%2。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is not empty. Other files stay as they are.</source>
        <translation>目标位置“%1”不为空。其他文件保持原样。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not open with this password: it is not the password of the archives there, or this one is damaged. If it is mistyped, stop and correct it. If you go on, the new archives open with this password only.</source>
        <translation>此密码打不开“%1”：它不是现有归档的密码，或者这个归档已损坏。如果是密码输错了，请停止并更正。如果继续，新归档只能用此密码打开。</translation>
    </message>
    <message>
        <source>The password was typed only once, and nothing tells whether it is mistyped. Type it again, in the second field on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>密码只输入了一次，无从得知是否输错。请在“密码”标签页的第二个输入框中再输入一次：用输错的密码加密的内容，没有人能打开。</translation>
    </message>
    <message>
        <source>The password and its repetition differ: one of them is mistyped. Type both again on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>两次输入的密码不同：其中有一个输错了。请在“密码”标签页重新输入两次：用输错的密码加密的内容，没有人能打开。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is listed more than once, and is backed up as often, one after the other, into one archive.</source>
        <translation>“%1”在列表中出现了多次，会逐次备份到同一个归档中。</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>it is neither a file nor a folder</source>
        <translation>既不是文件也不是文件夹</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Backed up %1 of %2 (%3).</source>
        <translation>%2 个项目中已备份 %1 个（%3）。</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>未找到：%1。</translation>
    </message>
    <message>
        <source>Left out, as they are neither files nor folders: %1.</source>
        <translation>以下项目既不是文件也不是文件夹，已跳过：%1。</translation>
    </message>
    <message>
        <source>The former archive is called &quot;%1&quot; now: %2.</source>
        <translation>先前的归档现在名为“%1”：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left and is not encrypted: run the backup again, or remove it.</source>
        <translation>“%1”遗留在原处，且未加密：请重新备份，或将其删除。</translation>
    </message>
    <message>
        <source>The profile has no folders. Add those that are to be backed up.</source>
        <translation>此方案没有文件夹。请添加要备份的文件夹。</translation>
    </message>
    <message>
        <source>The destination that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>显示的目标位置不属于此方案。请重新选择。</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the archives go to.</source>
        <translation>未选择目标位置。请选择存放归档的文件夹。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>目标位置“%1”不存在或不是文件夹。请连接其磁盘，或另选一个目标位置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of volumes, the files that an archive is split into. Choose a size such as 700 MB, or switch the splitting off.</source>
        <translation>“%1”不是有效的分卷（归档拆分成的文件）大小。请选择一个大小，例如 700 MB，或关闭拆分。</translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; would have a name that is too long for a file. Rename it, or back up the folder that it lies in.</source>
        <translation>“%1”的归档名称太长，无法用作文件名。请为它改名，或备份它所在的文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both need the file &quot;%3&quot; in the destination, and one archive would replace the other. Rename one of them, or back it up by a profile of its own.</source>
        <translation>“%1”和“%2”都需要在目标位置使用文件“%3”，其中一个归档会替换另一个。请为其中一个改名，或用单独的方案备份。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on the list, and its name is needed for the archive of &quot;%2&quot;. Choose another destination, or rename it.</source>
        <translation>“%1”在列表中，而“%2”的归档需要使用它的名称。请另选目标位置，或为它改名。</translation>
    </message>
    <message>
        <source>No password was fetched from the keychain. Fetch it: without a password nothing is backed up.</source>
        <translation>尚未从密钥环获取密码。请先获取：没有密码就不会备份任何内容。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, and is left out. Connect its disk, or remove it from the list.</source>
        <translation>“%1”不存在，将被跳过。请连接其磁盘，或将它移出列表。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, and is left out.</source>
        <translation>“%1”是%2，将被跳过。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link, and only the link itself would be backed up, nothing that it leads to. Put a slash behind it, or add the folder that it leads to.</source>
        <translation>“%1”是链接，只会备份链接本身，不会备份它指向的内容。请在其后加上斜杠，或添加它指向的文件夹。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; lies in &quot;%2&quot;, so each archive would hold the ones before it. Choose another destination.</source>
        <translation>目标位置“%1”在“%2”之中，因此每个归档都会包含先前的归档。请另选目标位置。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及另外 %1 个</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made.</source>
        <translation>制作新归档期间，无法为“%1”改名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made: %2.</source>
        <translation>制作新归档期间，无法为“%1”改名：%2。</translation>
    </message>
    <message>
        <source>Something is missing in the settings file, and without it files would be lost: %1. Repair the file, or move it away: the next start makes a new one.</source>
        <translation>设置文件中缺少一项，没有它会丢失文件：%1。请修复该文件，或将其移走：下次启动时会新建一个。</translation>
    </message>
</context>
<context>
    <name>extract</name>
    <message>
        <source>&quot;%1&quot; is no archive</source>
        <translation>“%1”不是归档</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot; in &quot;%2&quot;, so nothing was brought back. The archive&apos;s paths look like &quot;%3&quot;.</source>
        <translation>“%2”中没有“%1”，因此未还原任何内容。归档中的路径形如“%3”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not extracted: its path has &quot;part&quot; and, after that, a number as later volumes have it. Move or rename it, and add it again.</source>
        <translation>未提取“%1”：它的路径中有“part”，其后又有数字，与后续分卷的名称相似。请移动它或为它改名，然后重新添加。</translation>
    </message>
    <message>
        <source>The first volume is missing: &quot;%1&quot; is volume %2 of its set. Add the first one, &quot;%3.part1.rar&quot; or &quot;…part01.rar&quot;.</source>
        <translation>缺少第一个分卷：“%1”是其分卷组的第 %2 卷。请添加第一个分卷“%3.part1.rar”或“…part01.rar”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the path of anything in an archive. Name a file or a folder as the archive has it, such as &quot;home/anna/letter&quot;.</source>
        <translation>“%1”不可能是归档中任何内容的路径。请按归档中的写法指定文件或文件夹，例如“home/anna/letter”。</translation>
    </message>
    <message>
        <source>%1 Extract again; if it happens again, the machine may be short of memory.</source>
        <translation>%1 请重新提取；如果再次出现，可能是计算机内存不足。</translation>
    </message>
    <message>
        <source>The disk of &quot;%1&quot; is full. Make room, or choose a folder on another disk, and extract again.</source>
        <translation>“%1”所在的磁盘已满。请腾出空间，或选择另一个磁盘上的文件夹，然后重新提取。</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;. Choose another folder, or change its permissions.</source>
        <translation>无法写入“%1”。请另选文件夹，或更改其权限。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it, or extract into another folder.</source>
        <translation>“%1”是文件夹，而任务需要暂时使用同名文件。请为它改名，或提取到另一个文件夹。</translation>
    </message>
    <message>
        <source>A volume is missing: %1. Put all volumes of the set into one folder and extract again.</source>
        <translation>缺少一个分卷：%1。请将该组的所有分卷放入同一个文件夹，然后重新提取。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first volume of its set. Add the first one; the others are found by it.</source>
        <translation>“%1”不是其分卷组的第一个分卷。请添加第一个分卷；程序会由它找到其余分卷。</translation>
    </message>
    <message>
        <source>The volumes of &quot;%1&quot; do not belong together: %2. Put those of one set into one folder.</source>
        <translation>“%1”的各分卷不属于同一组：%2。请将同一组的分卷放入同一个文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: a part of it was lost when it was copied, or the copy is not finished. Copy it again: %2.</source>
        <translation>“%1”不完整：复制时丢失了一部分，或复制尚未完成。请重新复制：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: %2. Fetch another copy of it.</source>
        <translation>“%1”已损坏：%2。请另取一份副本。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no archive, whatever its name: %2.</source>
        <translation>无论名称如何，“%1”都不是归档：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be unpacked: %2.</source>
        <translation>无法解包“%1”：%2。</translation>
    </message>
    <message>
        <source>The private key can&apos;t be read. Choose the one that belongs to the certificate, on the Password tab.</source>
        <translation>无法读取私钥。请在“密码”标签页选择与证书配对的私钥。</translation>
    </message>
    <message>
        <source>The certificate can&apos;t be read. Choose the one that the archive was encrypted for, on the Password tab.</source>
        <translation>无法读取证书。请在“密码”标签页选择加密该归档时使用的证书。</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; is damaged, or was not encrypted for a certificate: %2. Fetch another copy, or choose another decryption method.</source>
        <translation>“%1”中的内容已损坏，或不是用证书加密的：%2。请另取一份副本，或选择其他解密方式。</translation>
    </message>
    <message>
        <source>The private key or the certificate is not usable: %1. A key with a pass phrase can&apos;t be used.</source>
        <translation>私钥或证书不可用：%1。带有口令的私钥无法使用。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with this private key and certificate: %2. Choose the pair that it was encrypted for, on the Password tab.</source>
        <translation>无法用此私钥和证书解密“%1”：%2。请在“密码”标签页选择加密时使用的证书及其私钥。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a link where the encrypted file should be. It was not made by a backup: don&apos;t trust it.</source>
        <translation>“%1”中本应是加密文件的位置是一个链接。它不是由备份生成的：请勿信任它。</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the decryption method, and extract again.</source>
        <translation>从“%1”的名称看不出其加密方式。请选择解密方式，然后重新提取。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with the method that is chosen; its name tells another one. Choose the automatic method.</source>
        <translation>无法用所选方式解密“%1”；它的名称表明是另一种方式。请选择自动。</translation>
    </message>
    <message>
        <source>The password is wrong: &quot;%1&quot; can&apos;t be decrypted with it. Type the one that the archive was made with.</source>
        <translation>密码错误：无法用它解密“%1”。请输入制作该归档时使用的密码。</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; was not encrypted by a password, or it is damaged. Choose another decryption method, or fetch another copy.</source>
        <translation>“%1”中的内容不是用密码加密的，或者已损坏。请选择其他解密方式，或另取一份副本。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted: %2.</source>
        <translation>无法解密“%1”：%2。</translation>
    </message>
    <message>
        <source>The password is probably wrong: what &quot;%1&quot; was decrypted to is no archive. Type the one that the archive was made with.</source>
        <translation>密码可能错误：“%1”解密后得到的不是归档。请输入制作该归档时使用的密码。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds names that lead out of &quot;%2&quot;: %3. They were left out; don&apos;t trust the archive.</source>
        <translation>“%1”中有指向“%2”之外的名称：%3。这些内容已跳过；请勿信任该归档。</translation>
    </message>
    <message>
        <source>A name in &quot;%1&quot; is taken by something else in &quot;%2&quot;: %3. Rename that, or extract into an empty folder.</source>
        <translation>“%1”中的一个名称在“%2”中已被其他内容占用：%3。请为后者改名，或提取到空文件夹。</translation>
    </message>
    <message>
        <source>The archiver left out a link of &quot;%1&quot;: %2. It makes none that lead to an absolute path or out of the folder. Quillorent&apos;s own archiver does: choose it on the Tools tab, and extract again.</source>
        <translation>归档程序跳过了“%1”中的一个链接：%2。它不会生成指向绝对路径或文件夹之外的链接。Quillorent 自带的归档程序可以：请在“工具”标签页选择它，然后重新提取。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the archives, and its name is needed for what comes out of &quot;%2&quot;. Extract into another folder.</source>
        <translation>“%1”是归档之一，而从“%2”提取的内容需要使用它的名称。请提取到另一个文件夹。</translation>
    </message>
    <message>
        <source>The set of &quot;%1&quot; seems incomplete or mixed: %2. Put all its volumes, and no others, into one folder.</source>
        <translation>“%1”的分卷组似乎不完整或有混杂：%2。请将它的所有分卷放入同一个文件夹，其中不要有别的分卷。</translation>
    </message>
    <message>
        <source>No private key is chosen. Without it nothing that was encrypted for a certificate can be decrypted.</source>
        <translation>未选择私钥。没有私钥，用证书加密的内容就无法解密。</translation>
    </message>
    <message>
        <source>The private key &quot;%1&quot; can&apos;t be read.</source>
        <translation>无法读取私钥“%1”。</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose the one that the archives were encrypted for.</source>
        <translation>未选择证书。请选择加密这些归档时使用的证书。</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; can&apos;t be read.</source>
        <translation>无法读取证书“%1”。</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the method, unless the name of what is in it tells.</source>
        <translation>从“%1”的名称看不出其加密方式。请选择方式，除非其中文件的名称能够表明。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was encrypted by a password, and a certificate is chosen. Choose a password on the Password tab.</source>
        <translation>“%1”是用密码加密的，而当前选择的是证书。请在“密码”标签页选择密码。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>“%1”是文件夹，而任务需要暂时使用同名文件。请为它改名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It will get another name, which begins with &quot;kept&quot;, and stay.</source>
        <translation>“%1”已经存在，而任务需要暂时使用这个名称。它将改用以“kept”开头的名称并保留下来。</translation>
    </message>
    <message>
        <source>Two archives need the name &quot;%1&quot; for a while. They are extracted one after the other; what the second would replace goes into a folder of its own.</source>
        <translation>有两个归档都需要暂时使用名称“%1”。它们会依次提取；第二个归档中会造成替换的内容将放入单独的文件夹。</translation>
    </message>
    <message>
        <source>Single files are looked for in one archive at a time. Choose one archive, or of a set its first volume.</source>
        <translation>一次只能在一个归档中查找单个文件。请选择一个归档；如果是分卷组，请选择其第一个分卷。</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>提取文件夹“%1”不存在或不是文件夹。请连接其磁盘，或另选文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there any more, or can&apos;t be read.</source>
        <translation>“%1”已不存在，或无法读取。</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name are replaced.</source>
        <translation>提取文件夹“%1”不为空。同名文件将被替换。</translation>
    </message>
    <message>
        <source>its name is that of a later volume</source>
        <translation>它的名称属于后续分卷</translation>
    </message>
    <message numerus="yes">
        <source>Looked into the archive: it holds %n file(s) and folder(s).</source>
        <translation>
            <numerusform>已查看归档：其中有 %n 个文件和文件夹。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brought back what was chosen, %n file(s) or folder(s), to &quot;%1&quot;.</source>
        <translation>
            <numerusform>已将所选的 %n 个文件或文件夹还原到“%1”。</numerusform>
        </translation>
    </message>
    <message>
        <source>Extracted %1 of %2 into &quot;%3&quot;.</source>
        <translation>%2 个归档中的 %1 个已提取到“%3”。</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Cancelled. What was chosen may have been brought back in part.</source>
        <translation>已取消。所选内容可能已还原了一部分。</translation>
    </message>
    <message>
        <source>Cancelled. Files left in the extraction folder may be incomplete.</source>
        <translation>已取消。留在提取文件夹中的文件可能不完整。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what would have replaced files of another archive.</source>
        <translation>“%1”中存放着本会替换另一归档中文件的内容。</translation>
    </message>
    <message>
        <source>Not extracted, as they look like later volumes: %1.</source>
        <translation>未提取，因为它们看起来像后续分卷：%1。</translation>
    </message>
    <message>
        <source>volume %1 is there twice, so some are leftovers of another backup</source>
        <translation>第 %1 卷有两个，因此其中一些是另一次备份的残留</translation>
    </message>
    <message>
        <source>volume %1 is missing</source>
        <translation>缺少第 %1 卷</translation>
    </message>
    <message>
        <source>all volumes but the first are missing</source>
        <translation>除第一卷外，其余分卷全部缺失</translation>
    </message>
    <message>
        <source>volume %1 is shorter than the one before it. Either it was cut short, or it is the last one, and those from volume %2 on are leftovers of a larger backup</source>
        <translation>第 %1 卷比前一卷小。它可能不完整；也可能就是最后一卷，而从第 %2 卷起都是另一次较大备份的残留</translation>
    </message>
    <message>
        <source>volume %1 is as large as those before it, so it may not be the last</source>
        <translation>第 %1 卷与前面各卷一样大，因此可能不是最后一卷</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not hold the file &quot;%2&quot; that its name promises. Give the archive back the name that it had; if it never had another one, no backup has made it.</source>
        <translation>“%1”中没有与其名称相应的文件“%2”。请恢复该归档原来的名称；如果它从未改名，就不是备份的归档。</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; was decrypted to is no archive. The private key is wrong, or no backup has made the archive.</source>
        <translation>“%1”解密后得到的不是归档。可能是私钥错误，或者它不是备份的归档。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing of yours was changed.</source>
        <translation>已取消。您的文件没有任何改变。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link</source>
        <translation>“%1”是链接</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;, beginning with this: %3. All others are there. Extract into a folder on another disk to have these, too.</source>
        <translation>
            <numerusform>“%1”中有 %n 个文件无法在“%2”中创建，首先是：%3。其余的都在。要同时得到这些文件，请提取到另一磁盘上的文件夹。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>extraction</name>
    <message>
        <source>No archives are chosen. Add those that are to be extracted.</source>
        <translation>未选择归档。请添加要提取的归档。</translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is extracted.</source>
        <translation>未提供密码。请在“密码”标签页输入；没有密码就不会提取任何内容。</translation>
    </message>
    <message>
        <source>No extraction folder is chosen. Choose the folder that the contents go to.</source>
        <translation>未选择提取文件夹。请选择存放内容的文件夹。</translation>
    </message>
    <message>
        <source>The extraction folder that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>显示的提取文件夹不属于此方案。请重新选择。</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>未选择证书。请在“密码”标签页选择一个。</translation>
    </message>
    <message>
        <source>No archive is chosen. Add the one that has the file.</source>
        <translation>未选择归档。请添加包含该文件的归档。</translation>
    </message>
    <message>
        <source>Add archives</source>
        <translation>添加归档</translation>
    </message>
    <message>
        <source>There is no archive among them: archives end in &quot;.rar&quot;.</source>
        <translation>其中没有归档：归档的名称以 &quot;.rar&quot; 结尾。</translation>
    </message>
    <message>
        <source>Choose where the archives are extracted to</source>
        <translation>选择归档的提取位置</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made. Choose another one.</source>
        <translation>无法创建文件夹“%1”。请另选一个。</translation>
    </message>
    <message>
        <source>Testing the archives…</source>
        <translation>正在检查归档…</translation>
    </message>
    <message>
        <source>Testing &quot;%1&quot;…</source>
        <translation>正在检查“%1”…</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>正在还原…</translation>
    </message>
    <message>
        <source>Looking into &quot;%1&quot;…</source>
        <translation>正在查看“%1”的内容…</translation>
    </message>
</context>
<context>
    <name>files</name>
    <message>
        <source>a pipe, a socket or a device</source>
        <translation>管道、套接字或设备</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link or a file in the destination, where a folder is needed</source>
        <translation>“%1”在目标位置是链接或文件，而该处需要文件夹</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>There may not be enough room: about %1 are needed, and %2 are free in &quot;%3&quot;.</source>
        <translation>空间可能不足：约需要 %1，而“%3”中还有 %2 可用。</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;: %2. Choose another folder, or change its permissions.</source>
        <translation>无法写入“%1”：%2。请另选文件夹，或更改其权限。</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>一个文件</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>一个文件夹</translation>
    </message>
    <message>
        <source>a link</source>
        <translation>一个链接</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder</source>
        <translation>“%1”是一个文件夹</translation>
    </message>
</context>
<context>
    <name>folders</name>
    <message>
        <source>The password is that of the account &quot;%1&quot;, and the account that is chosen is &quot;%2&quot;. Fetch its password on the Password tab, or choose the other account again.</source>
        <translation>此密码属于账户“%1”，而所选账户是“%2”。请在“密码”标签页获取所选账户的密码，或重新选择原来的账户。</translation>
    </message>
    <message>
        <source>Add folders and files</source>
        <translation>添加文件夹和文件</translation>
    </message>
    <message>
        <source>Choose the destination of the archives</source>
        <translation>选择归档的目标位置</translation>
    </message>
</context>
<context>
    <name>headless</name>
    <message>
        <source>The profile encrypts for a certificate; a password does not go with it.</source>
        <translation>此方案用证书加密；不能同时使用密码。</translation>
    </message>
    <message>
        <source>There is no archive &quot;%1&quot;.</source>
        <translation>没有归档“%1”。</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name would be replaced.</source>
        <translation>提取文件夹“%1”不为空。同名文件将被替换。</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>没有任何方案。</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;; there are: %2.</source>
        <translation>没有方案“%1”；现有方案：%2。</translation>
    </message>
    <message>
        <source>Try &quot;quillorent-run --help&quot;.</source>
        <translation>请尝试 &quot;quillorent-run --help&quot;。</translation>
    </message>
    <message>
        <source>Runs what Quillorent&apos;s window runs, without a window.

Commands:
  backup [PROFILE]                  back up the folders of a profile
  extract [PROFILE] -- ARCHIVE...   turn archives back into folders; of a set the first volume,
                                    or a folder of archives
  list [PROFILE] -- ARCHIVE         tell what an archive holds: bytes, time, path, separated by
                                    tabs; needs the password, room and time as extract does
  sync [PROFILE]                    synchronise the files and folders of a profile
  tools                             list the external tools: name, path, ok or not
  profiles                          list the profiles; * marks the one opened at start-up

Exit status: 0 done, 1 failed or cancelled, 2 could not start, or was not to
go on (see --yes), 64 wrong usage.</source>
        <translation>无需窗口，即可执行 Quillorent 窗口中的任务。

命令：
  backup [PROFILE]                  备份方案中的文件夹
  extract [PROFILE] -- ARCHIVE...   将归档变回文件夹；分卷组只需第一个分卷，
                                    也可指定存放归档的文件夹
  list [PROFILE] -- ARCHIVE         列出归档内容：字节数、时间、路径，以制表符分隔；
                                    所需密码、空间和时间与 extract 相同
  sync [PROFILE]                    同步方案中的文件和文件夹
  tools                             列出外部工具：名称、路径、是否正常
  profiles                          列出方案；* 表示启动时打开的方案

退出状态：0 完成，1 失败或已取消，2 无法开始，或按要求没有继续
（参见 --yes），64 用法错误。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>显示本帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE; - is standard input.</source>
        <translation>从 FILE 的第一行读取密码；- 表示标准输入。</translation>
    </message>
    <message>
        <source>Bring back PATH alone, a file or folder of the one archive, as list tells it; may be given several times. Nothing is replaced: what is there gets a name that begins with &quot;kept-&quot;.</source>
        <translation>只还原 PATH，即该归档中的一个文件或文件夹，写法与 list 列出的相同；可多次使用。不会替换任何内容：已有的文件会改用以“kept-”开头的名称。</translation>
    </message>
    <message>
        <source>Extract into FOLDER instead of the profile&apos;s extraction folder.</source>
        <translation>提取到 FOLDER，而不是方案的提取文件夹。</translation>
    </message>
    <message>
        <source>Decrypt by METHOD: aes, bf, 3d, smime, or auto, by the archive&apos;s name.</source>
        <translation>用 METHOD 解密：aes、bf、3d、smime，或 auto（根据归档名称判断）。</translation>
    </message>
    <message>
        <source>Go on in spite of what is found before the run: archives that will be replaced, too little room, files that will be deleted, and the like. What would lose files is refused all the same.</source>
        <translation>即使任务开始前发现问题也继续：归档将被替换、空间太小、文件将被删除等。会丢失文件的操作仍会被拒绝。</translation>
    </message>
    <message>
        <source>Print the run&apos;s record on standard output when it has ended.</source>
        <translation>任务结束后，将任务记录输出到标准输出。</translation>
    </message>
    <message>
        <source>Show progress even where no terminal is.</source>
        <translation>即使没有终端也显示进度。</translation>
    </message>
    <message>
        <source>backup, extract, list, sync, tools or profiles.</source>
        <translation>backup、extract、list、sync、tools 或 profiles。</translation>
    </message>
    <message>
        <source>The profile; without it the one that the window would open.</source>
        <translation>方案；未指定时使用窗口会打开的方案。</translation>
    </message>
    <message>
        <source>A command is missing: backup, extract, list, sync, tools or profiles.</source>
        <translation>缺少命令：backup、extract、list、sync、tools 或 profiles。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; there are backup, extract, list, sync, tools and profiles.</source>
        <translation>“%1”不是命令；可用的命令有 backup、extract、list、sync、tools 和 profiles。</translation>
    </message>
    <message>
        <source>Archives are missing: name them behind &quot;--&quot;.</source>
        <translation>缺少归档：请在 &quot;--&quot; 之后指定。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one word too many.</source>
        <translation>“%1”是多余的参数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>“%1”不能与“%2”同时使用。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no method; there are %2.</source>
        <translation>“%1”不是有效的方式；可用的有 %2。</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>The first line of %1 is longer than any password can be. Give a file whose first line is the password alone.</source>
        <translation>%1 的第一行过长，不可能是密码。请提供第一行只有密码的文件。</translation>
    </message>
    <message>
        <source>The password in %1 is not UTF-8 text. Save the file as UTF-8.</source>
        <translation>%1 中的密码不是 UTF-8 文本。请将文件存为 UTF-8。</translation>
    </message>
    <message>
        <source>what was typed</source>
        <translation>输入的内容</translation>
    </message>
    <message>
        <source>The first line of %1 is empty. Write the password there.</source>
        <translation>%1 的第一行为空。请在那里写上密码。</translation>
    </message>
    <message>
        <source>Can&apos;t read the password from %1: %2. Give another file.</source>
        <translation>无法从 %1 读取密码：%2。请提供其他文件。</translation>
    </message>
    <message>
        <source>The password was not typed the same way twice. Nothing was done.</source>
        <translation>两次输入的密码不同。未做任何操作。</translation>
    </message>
    <message>
        <source>Say --yes to go on all the same.</source>
        <translation>要继续进行，请使用 --yes。</translation>
    </message>
    <message>
        <source>No password was typed. Nothing was done.</source>
        <translation>未输入密码。未做任何操作。</translation>
    </message>
    <message>
        <source>Password for the archives: </source>
        <translation>归档的密码: </translation>
    </message>
    <message>
        <source>The same password again: </source>
        <translation>请再次输入同一密码: </translation>
    </message>
    <message>
        <source>The two passwords are not the same. Type both again.</source>
        <translation>两次输入的密码不一致。请重新输入两次。</translation>
    </message>
    <message>
        <source>Do the same again, or remove them.</source>
        <translation>请再执行一次相同的操作，或将其删除。</translation>
    </message>
</context>
<context>
    <name>keychain</name>
    <message>
        <source>The keychain did what it was asked to.</source>
        <translation>密钥环已完成所要求的操作。</translation>
    </message>
    <message>
        <source>The keychain holds no such password.</source>
        <translation>密钥环中没有这样的密码。</translation>
    </message>
    <message>
        <source>The keychain holds a password of that name already. It stays as it is: remove it with your desktop&apos;s password program first, or choose another account name.</source>
        <translation>密钥环中已有同名密码。它保持不变：请先用桌面环境的密码程序将其删除，或另选账户名称。</translation>
    </message>
    <message>
        <source>No keychain service runs in this session. Start one (any Secret Service will do), or type the password.</source>
        <translation>此会话中没有运行密钥环服务。请启动一个（任何 Secret Service 均可），或直接输入密码。</translation>
    </message>
    <message>
        <source>The keychain service has no default keychain. Create one with your desktop&apos;s password program.</source>
        <translation>密钥环服务没有默认密钥环。请用桌面环境的密码程序创建一个。</translation>
    </message>
    <message>
        <source>The keychain is locked. Unlock it and try again.</source>
        <translation>密钥环已锁定。请解锁后重试。</translation>
    </message>
    <message>
        <source>The keychain is still locked: its password was not given, or it could not be asked for. Try again, or unlock it with your desktop&apos;s password program.</source>
        <translation>密钥环仍处于锁定状态：未提供它的密码，或无法询问。请重试，或用桌面环境的密码程序解锁。</translation>
    </message>
    <message>
        <source>The keychain service refused. Look at your desktop&apos;s password program for the reason.</source>
        <translation>密钥环服务拒绝了请求。请在桌面环境的密码程序中查看原因。</translation>
    </message>
    <message>
        <source>The keychain service does not answer. Try again later, or restart it; whether it stored something shows when it answers again.</source>
        <translation>密钥环服务没有响应。请稍后重试，或重新启动该服务；等它恢复响应后，才能知道是否已存储。</translation>
    </message>
    <message>
        <source>The keychain was not waited for any longer.</source>
        <translation>已不再等待密钥环。</translation>
    </message>
    <message>
        <source>That password is not in the keychain.</source>
        <translation>密钥环中没有该密码。</translation>
    </message>
    <message>
        <source>A password of this kind does not have that attribute.</source>
        <translation>此类密码没有该属性。</translation>
    </message>
    <message>
        <source>The keychain can&apos;t hold that name: it is missing, or is no proper text.</source>
        <translation>密钥环无法保存该名称：名称为空，或不是有效文本。</translation>
    </message>
</context>
<context>
    <name>keys</name>
    <message>
        <source>(no subject)</source>
        <translation>（无主体）</translation>
    </message>
    <message>
        <source>%1%2 – valid from %3 to %4</source>
        <translation>%1%2 – 有效期从 %3 到 %4</translation>
    </message>
    <message>
        <source>This certificate is not valid before %1. Check the computer&apos;s clock, or choose another one.</source>
        <translation>此证书在 %1 之前无效。请检查计算机的时钟，或另选证书。</translation>
    </message>
    <message>
        <source>This certificate has expired on %1. What it encrypted still opens with its private key; for new archives choose one that is valid.</source>
        <translation>此证书已于 %1 过期。用它加密的内容仍可用其私钥打开；制作新归档请选择有效的证书。</translation>
    </message>
    <message>
        <source>This certificate expires today.</source>
        <translation>此证书今天过期。</translation>
    </message>
    <message>
        <source>This certificate expires tomorrow.</source>
        <translation>此证书明天过期。</translation>
    </message>
    <message numerus="yes">
        <source>This certificate expires in %n days, on %1.</source>
        <translation>
            <numerusform>此证书将在 %n 天后，即 %1 过期。</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>没有名称</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>未选择文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: %2.</source>
        <translation>无法读取“%1”：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>“%1”为空。</translation>
    </message>
    <message>
        <source>

OpenSSL says: </source>
        <translation>

OpenSSL 的消息： </translation>
    </message>
    <message>
        <source>&quot;%1&quot; looks like a certificate, but can&apos;t be read as one. It may be damaged.</source>
        <translation>“%1”像是证书，但无法按证书读取。它可能已损坏。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a private key, not a certificate. Choose the certificate that belongs to it here, and this file as the private key.</source>
        <translation>“%1”中是私钥，不是证书。请在此处选择与之配对的证书，并将此文件选作私钥。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Only PEM, the text form, is accepted. Take the certificate out with:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</source>
        <translation>“%1”是 PKCS#12 容器。只接受文本形式 PEM。请用以下命令取出证书：

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not PEM but binary (DER). Only PEM, the text form, is accepted. Convert it with:

openssl x509 -inform DER -in FILE -out certificate.pem</source>
        <translation>“%1”不是 PEM，而是二进制形式（DER）。只接受文本形式 PEM。请用以下命令转换：

openssl x509 -inform DER -in FILE -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no PEM certificate: such a file has a line &quot;-----BEGIN CERTIFICATE-----&quot;.</source>
        <translation>“%1”不是 PEM 证书：此类文件中有一行 &quot;-----BEGIN CERTIFICATE-----&quot;。</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is encrypted with a pass phrase, which the program can&apos;t give to OpenSSL. Make a copy without one, and keep it where nobody else can read it:

openssl rsa -in FILE -out key.pem</source>
        <translation>“%1”中的私钥是用口令加密的，而程序无法将口令交给 OpenSSL。请制作一份不带口令的副本，并存放在别人无法读取的地方：

openssl rsa -in FILE -out key.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a certificate, not a private key. Choose the private key that belongs to the certificate.</source>
        <translation>“%1”中是证书，不是私钥。请选择与证书配对的私钥。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Take the private key out with:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</source>
        <translation>“%1”是 PKCS#12 容器。请用以下命令取出私钥：

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is not an RSA key. Only RSA keys, with RSA certificates, can be used.</source>
        <translation>“%1”中的私钥不是 RSA 密钥。只能使用 RSA 密钥和 RSA 证书。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no private key that can be read. It must be an RSA key in PEM, the text form.</source>
        <translation>“%1”中没有可读取的私钥。私钥必须是文本形式（PEM）的 RSA 密钥。</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; does not belong to the certificate &quot;%2&quot;. Choose the key that the certificate was made with; no other one opens what the certificate encrypts.</source>
        <translation>“%1”中的私钥与证书“%2”不配对。请选择制作该证书时所用的私钥；其他私钥都无法打开用该证书加密的内容。</translation>
    </message>
    <message>
        <source>No certificate is chosen yet. Choose it first: a private key is accepted only with the certificate that it belongs to.</source>
        <translation>尚未选择证书。请先选择证书：只有连同配对的证书，私钥才会被接受。</translation>
    </message>
    <message>
        <source>The certificate itself can&apos;t be used any more. </source>
        <translation>证书本身已无法使用。 </translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is backed up.</source>
        <translation>未提供密码。请在“密码”标签页输入；没有密码就不会备份任何内容。</translation>
    </message>
    <message>
        <source>The password holds a zero byte (is its file perhaps UTF-16?), and all behind it would be lost. Use a password of ordinary characters, in UTF-8.</source>
        <translation>密码中含有零字节（它的文件也许是 UTF-16？），其后的内容都会丢失。请使用由普通字符组成的 UTF-8 密码。</translation>
    </message>
    <message>
        <source>The password holds a line break, and all behind it would be lost. Use one of a single line.</source>
        <translation>密码中含有换行符，其后的内容都会丢失。请使用单行密码。</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes, and would be cut. Use a shorter one.</source>
        <translation>密码超过 %1 字节，会被截断。请使用较短的密码。</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>未选择证书。请在“密码”标签页选择一个。</translation>
    </message>
    <message>
        <source>The key of the certificate &quot;%1&quot; has %2 bits; less than %3 can be broken.</source>
        <translation>证书“%1”的密钥有 %2 位；少于 %3 位的密钥可能被破解。</translation>
    </message>
    <message>
        <source>%1, %2 bits</source>
        <translation>%1，%2 位</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>未知类型</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; is not there, or can&apos;t be read. Choose another one on the Password tab.</source>
        <translation>证书“%1”不存在，或无法读取。请在“密码”标签页另选一个。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is chosen as the certificate, but it is a private key. Choose the certificate that belongs to it on the Password tab.</source>
        <translation>选作证书的“%1”其实是私钥。请在“密码”标签页选择与它配对的证书。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no certificate in the form that is needed here, which is PEM, a text file. Choose another one on the Password tab.</source>
        <translation>“%1”不是此处所需形式的证书，即文本文件形式的 PEM。请在“密码”标签页另选一个。</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; has a key of another kind than RSA, and only RSA keys can be used here. Choose another one on the Password tab.</source>
        <translation>证书“%1”的密钥不是 RSA 密钥，而此处只能使用 RSA 密钥。请在“密码”标签页另选一个。</translation>
    </message>
</context>
<context>
    <name>outlets</name>
    <message>
        <source>Wait...</source>
        <translation>请稍候...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>passwords</name>
    <message>
        <source>Nothing that is encrypted for this certificate can be opened without its private key: make sure that you have it, and a copy in a safe place.</source>
        <translation>没有配对的私钥，用此证书加密的任何内容都无法打开：请确认您持有私钥，并在安全的地方保存了一份副本。</translation>
    </message>
    <message>
        <source>No private key is chosen. </source>
        <translation>未选择私钥。 </translation>
    </message>
    <message>
        <source>The private key is not where it was. </source>
        <translation>私钥已不在原来的位置。 </translation>
    </message>
    <message>
        <source>Choose a certificate</source>
        <translation>选择证书</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>选择私钥</translation>
    </message>
    <message>
        <source>It is no text, in UTF-8. Another program stored it: choose another account.</source>
        <translation>它不是 UTF-8 文本。它是由其他程序存储的：请另选账户。</translation>
    </message>
    <message>
        <source>The password of &quot;%1&quot; was fetched from the keychain.</source>
        <translation>已从密钥环获取“%1”的密码。</translation>
    </message>
    <message>
        <source>The keychain holds no password of &quot;%1&quot;. Check the account name; or type the password and store it.</source>
        <translation>密钥环中没有“%1”的密码。请检查账户名称；或输入密码并存储。</translation>
    </message>
    <message>
        <source>What the keychain holds of &quot;%1&quot; is of no use. </source>
        <translation>密钥环中“%1”的内容无法使用。 </translation>
    </message>
    <message>
        <source>Nothing was stored. </source>
        <translation>未存储任何内容。 </translation>
    </message>
    <message>
        <source>The password was stored in the keychain for &quot;%1&quot;.</source>
        <translation>已在密钥环中为“%1”存储密码。</translation>
    </message>
    <message>
        <source>The keychain holds a password of &quot;%1&quot; already, and it stays as it is. Choose another account name, or remove the old one in your desktop&apos;s password program first.</source>
        <translation>密钥环中已有“%1”的密码，它保持不变。请另选账户名称，或先用桌面环境的密码程序删除旧密码。</translation>
    </message>
    <message>
        <source>The keychain is unlocked.</source>
        <translation>密钥环已解锁。</translation>
    </message>
    <message>
        <source>Asking the keychain…</source>
        <translation>正在询问密钥环…</translation>
    </message>
</context>
<context>
    <name>plist</name>
    <message>
        <source>declarations within the document are not supported</source>
        <translation>不支持文档内的声明</translation>
    </message>
    <message>
        <source>it holds a tag of more than %1 characters</source>
        <translation>其中含有超过 %1 个字符的标签</translation>
    </message>
    <message>
        <source>%1: it can&apos;t be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
    <message>
        <source>its links lead in a circle</source>
        <translation>其链接形成循环</translation>
    </message>
    <message>
        <source>the root element is &lt;%1&gt;, not &lt;plist&gt;</source>
        <translation>根元素是 &lt;%1&gt;，而不是 &lt;plist&gt;</translation>
    </message>
    <message>
        <source>the list is empty</source>
        <translation>列表为空</translation>
    </message>
    <message>
        <source>the root is &lt;%1&gt;, not a dictionary</source>
        <translation>根是 &lt;%1&gt;，而不是字典</translation>
    </message>
    <message>
        <source>something follows the root dictionary</source>
        <translation>根字典之后还有内容</translation>
    </message>
    <message>
        <source>there is text between the elements</source>
        <translation>元素之间有文本</translation>
    </message>
    <message>
        <source>entities are not supported</source>
        <translation>不支持实体</translation>
    </message>
    <message>
        <source>its encoding is %1, not UTF-8</source>
        <translation>其编码是 %1，而不是 UTF-8</translation>
    </message>
    <message>
        <source>the document type is not that of a property list</source>
        <translation>文档类型不是属性列表的类型</translation>
    </message>
    <message>
        <source>the attribute %1 is unknown</source>
        <translation>未知的属性 %1</translation>
    </message>
    <message>
        <source>version %1 of the format is unknown</source>
        <translation>未知的格式版本 %1</translation>
    </message>
    <message>
        <source>the key %1 is there twice</source>
        <translation>键 %1 出现了两次</translation>
    </message>
    <message>
        <source>the key %1 has no value</source>
        <translation>键 %1 没有值</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands where a key is expected</source>
        <translation>应为键的位置上是 &lt;%1&gt;</translation>
    </message>
    <message>
        <source>it is nested deeper than %1 levels</source>
        <translation>嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>the element &lt;%1&gt; is unknown</source>
        <translation>未知的元素 &lt;%1&gt;</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <translation>“%1”不是整数</translation>
    </message>
    <message>
        <source>the integer %1 does not fit into 64 bits</source>
        <translation>整数 %1 超出 64 位的范围</translation>
    </message>
    <message>
        <source>“%1” is not a real number</source>
        <translation>“%1”不是实数</translation>
    </message>
    <message>
        <source>the data is not Base64</source>
        <translation>数据不是 Base64</translation>
    </message>
    <message>
        <source>“%1” is not a date like 2001-12-31T23:59:59Z</source>
        <translation>“%1”不是形如 2001-12-31T23:59:59Z 的日期</translation>
    </message>
    <message>
        <source>there is text in &lt;true&gt; or &lt;false&gt;</source>
        <translation>&lt;true&gt; 或 &lt;false&gt; 中有文本</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这样的文件</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>它大于 %1 MiB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>it is a binary property list; only XML ones can be read</source>
        <translation>它是二进制属性列表；只能读取 XML 格式的属性列表</translation>
    </message>
    <message>
        <source>%1: it is not UTF-8</source>
        <translation>%1：不是 UTF-8</translation>
    </message>
    <message>
        <source>it can&apos;t be put into XML</source>
        <translation>无法写成 XML</translation>
    </message>
    <message>
        <source>it would be larger than %1 MiB</source>
        <translation>它会大于 %1 MiB</translation>
    </message>
    <message>
        <source>there is nothing to write</source>
        <translation>没有可写入的内容</translation>
    </message>
    <message>
        <source>it has a character that such a file can&apos;t hold (%1)</source>
        <translation>含有此类文件无法容纳的字符（%1）</translation>
    </message>
    <message>
        <source>the value under “%2” is nested deeper than %1 levels</source>
        <translation>“%2”下的值嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>the value under “%1” is a date that the file can&apos;t hold</source>
        <translation>“%1”下的值是文件无法表示的日期</translation>
    </message>
    <message>
        <source>the value under “%2” has a character that the file can&apos;t hold (%1)</source>
        <translation>“%2”下的值含有文件无法容纳的字符（%1）</translation>
    </message>
</context>
<context>
    <name>profiles</name>
    <message>
        <source>A profile needs a name, and none was typed.</source>
        <translation>方案需要名称，但没有输入。</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Choose another name.</source>
        <translation>已有方案“%1”。请另选名称。</translation>
    </message>
    <message>
        <source>There can be no profiles, for their file can&apos;t be read:
%1
Repair it, or move it away, and start the program again.</source>
        <translation>无法使用方案，因为无法读取其文件：
%1
请修复该文件，或将其移走，然后重新启动程序。</translation>
    </message>
    <message>
        <source>No copy could be saved either:
%1</source>
        <translation>副本也无法保存：
%1</translation>
    </message>
    <message>
        <source>Choose a folder for the copy</source>
        <translation>选择存放副本的文件夹</translation>
    </message>
    <message>
        <source>Another window or program has changed the file of the %1 since it was read here, and both of you have changed %2.

Whichever you choose, the other one is kept beside the file. What only one of you has changed is saved in any case.</source>
        <translation>自从在此读取%1的文件后，另一个窗口或程序更改了它，而且双方都更改了%2。

无论您选择哪一方，另一方都会保存在该文件旁边。只有一方更改的内容总会保存。</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be saved, for their file could not be read:
%2

Repair it, or move it away, and start the program again.</source>
        <translation>无法保存%1，因为无法读取其文件：
%2

请修复该文件，或将其移走，然后重新启动程序。</translation>
    </message>
    <message>
        <source>Another window or program has changed %1: that is taken over.</source>
        <translation>另一个窗口或程序更改了%1：已采用该更改。</translation>
    </message>
    <message>
        <source>The %1 could not be saved:
%2

What you changed is kept only as long as the program runs. Make room, or make the folder writable, and save again.</source>
        <translation>无法保存%1：
%2

您的更改只在程序运行期间保留。请腾出空间，或使文件夹可写，然后重新保存。</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>方案</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>runs</name>
    <message>
        <source>the program was ended in the middle of it</source>
        <translation>程序在操作中途被结束</translation>
    </message>
    <message>
        <source>The program was ended before the run was.</source>
        <translation>程序在任务完成前被结束。</translation>
    </message>
    <message>
        <source>no other name is free for it</source>
        <translation>没有其他可用的名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>“%1”是文件夹，而任务需要暂时使用同名文件。请为它改名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way and can&apos;t be given another name: %2.</source>
        <translation>“%1”占用了位置，且无法改名：%2。</translation>
    </message>
    <message>
        <source>Something puts %1 under the name &quot;%2&quot; again and again. Choose a folder that nobody else writes to.</source>
        <translation>有程序反复在名称“%2”下放入%1。请选择没有其他人会写入的文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been replaced by %2 of somebody else&apos;s. Choose a folder that nobody else writes to.</source>
        <translation>“%1”已被别人的%2替换。请选择没有其他人会写入的文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be made: %2</source>
        <translation>无法创建“%1”：%2</translation>
    </message>
    <message>
        <source>%1: the tool ended with status %2 and did not say why.</source>
        <translation>%1：工具以状态 %2 结束，没有说明原因。</translation>
    </message>
    <message>
        <source>%1: the tool said nothing, and did not make &quot;%2&quot;.</source>
        <translation>%1：工具没有给出消息，也没有生成“%2”。</translation>
    </message>
    <message>
        <source>Another run is writing into &quot;%1&quot;, or its tools still are. Wait until it has ended.</source>
        <translation>另一个任务正在写入“%1”，或其工具仍在写入。请等它结束。</translation>
    </message>
    <message>
        <source>Collecting</source>
        <translation>收集</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>收尾</translation>
    </message>
    <message>
        <source>Testing</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>解包</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>解密</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>归位</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>还剩几秒</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>约剩 %1 秒</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>约剩 %1 分钟</translation>
    </message>
    <message>
        <source>About %1 h left</source>
        <translation>约剩 %1 小时</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was in the way and is called &quot;%2&quot; now.</source>
        <translation>“%1”占用了位置，现已改名为“%2”。</translation>
    </message>
    <message numerus="yes">
        <source>%n more were in the way, and their names begin with &quot;kept-&quot; now.</source>
        <translation>
            <numerusform>另有 %n 个占用了位置，其名称现在以“kept-”开头。</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; can&apos;t be made</source>
        <translation>无法创建文件夹“%1”</translation>
    </message>
    <message>
        <source>It can&apos;t be written down what this run does: %1. If it is interrupted, nobody could tell what it leaves from files of your own.</source>
        <translation>无法记下此任务所做的事：%1。如果它被中断，就无法把它遗留的文件与您自己的文件区分开。</translation>
    </message>
    <message>
        <source>The OpenSSL program that is chosen on the Tools tab makes something else of a password than these archives need, so it can&apos;t open them. Choose Quillorent&apos;s own there; the password may be right.</source>
        <translation>“工具”标签页中选择的 OpenSSL 程序处理密码的方式与这些归档所需的不同，因此无法打开它们。请在那里选择 Quillorent 自带的 OpenSSL；密码可能是对的。</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>“%1” may not be written, nor moved out of the way: what is changed can&apos;t be saved.</source>
        <translation>“%1”不可写入，也无法移走：更改无法保存。</translation>
    </message>
    <message>
        <source>“%1” may not be written by this user. It is kept as “%2”, and a new one with the program&apos;s own settings has taken its place.</source>
        <translation>当前用户无法写入“%1”。它已保留为“%2”，并由一个采用程序自身设置的新文件取代。</translation>
    </message>
    <message>
        <source>“%1” could not be read when it was saved over. What it held is kept as “%2”.</source>
        <translation>保存并覆盖“%1”时，无法读取其内容。原内容已保留为“%2”。</translation>
    </message>
    <message>
        <source>What others had changed in “%1” is kept as “%2”.</source>
        <translation>其他程序在“%1”中所做的更改已保留为“%2”。</translation>
    </message>
    <message>
        <source>What you had changed in “%1” is kept as “%2”.</source>
        <translation>您在“%1”中所做的更改已保留为“%2”。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made</source>
        <translation>无法创建文件夹“%1”</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read, and no copy of it can be kept: so it is not saved over</source>
        <translation>“%1”无法读取，也无法保留其副本：因此不覆盖它</translation>
    </message>
    <message>
        <source>Of “%1” no copy can be kept: so it is not saved over</source>
        <translation>无法保留“%1”的副本：因此不覆盖它</translation>
    </message>
</context>
<context>
    <name>sync</name>
    <message>
        <source>The list of what is to be synchronised can&apos;t be written to &quot;%1&quot;: %2.</source>
        <translation>无法将要同步的内容列表写入“%1”：%2。</translation>
    </message>
    <message>
        <source>deleted at the destination</source>
        <translation>在目标位置删除</translation>
    </message>
    <message>
        <source>replaced there, removed here</source>
        <translation>在目标位置替换，从此处删除</translation>
    </message>
    <message>
        <source>moved there</source>
        <translation>移动到目标位置</translation>
    </message>
    <message>
        <source>there already, removed here</source>
        <translation>目标位置已有，从此处删除</translation>
    </message>
    <message>
        <source>folder made</source>
        <translation>创建文件夹</translation>
    </message>
    <message>
        <source>date or permissions set</source>
        <translation>设置日期或权限</translation>
    </message>
    <message>
        <source>Nothing would be copied or deleted.</source>
        <translation>没有需要复制或删除的内容。</translation>
    </message>
    <message>
        <source>%1. %2 would be copied.</source>
        <translation>%1。将复制 %2。</translation>
    </message>
    <message>
        <source>Delete %1 there, remove %2 here?</source>
        <translation>要在目标位置删除 %1，并从此处删除 %2 吗？</translation>
    </message>
    <message>
        <source>Delete %1 there?</source>
        <translation>要在目标位置删除 %1 吗？</translation>
    </message>
    <message>
        <source>Remove %1 here?</source>
        <translation>要从此处删除 %1 吗？</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; shows another key than before; someone may be in its place. Ask who runs it before you connect again.</source>
        <translation>服务器“%1”出示的密钥与以前不同；可能有人在冒充它。再次连接之前，请询问它的管理者。</translation>
    </message>
    <message>
        <source>ssh does not know the server &quot;%1&quot; yet. Connect to it once in a terminal (ssh %1), compare the key that it shows, and try again.</source>
        <translation>ssh 还不认识服务器“%1”。请在终端中连接一次（ssh %1），核对它出示的密钥，然后重试。</translation>
    </message>
    <message>
        <source>There is no server of the name &quot;%1&quot;, or this computer is offline. Check the name.</source>
        <translation>没有名为“%1”的服务器，或此计算机未联网。请检查名称。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; refuses the connection. Check that its ssh service runs; a port other than 22 belongs into ~/.ssh/config.</source>
        <translation>服务器“%1”拒绝连接。请检查其 ssh 服务是否在运行；22 以外的端口应写入 ~/.ssh/config。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; can&apos;t be reached. Check the network, and that the server is on.</source>
        <translation>无法连接到服务器“%1”。请检查网络，以及服务器是否已开机。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in, since it was sent an empty user name. Fill in the user: then ssh takes the one from ~/.ssh/config, or else your own.</source>
        <translation>服务器“%1”不允许您登录，因为发送的用户名为空。请填写用户：这样 ssh 会采用 ~/.ssh/config 中的用户，否则采用您自己的用户名。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in. Nobody can type a password here: log in by a key that ssh finds without a question (see ssh-agent, ~/.ssh/config).</source>
        <translation>服务器“%1”不允许您登录。在这里无法输入密码：请使用 ssh 无需询问即可找到的密钥登录（参见 ssh-agent、~/.ssh/config）。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; has no rsync. Install it there.</source>
        <translation>服务器“%1”上没有 rsync。请在那里安装。</translation>
    </message>
    <message>
        <source>rsync does not understand its arguments. Check &quot;rsyncparams&quot; and &quot;rsyncexcludes&quot; in the settings file: both must be there, and each be one option.</source>
        <translation>rsync 不理解传给它的参数。请检查设置文件中的 &quot;rsyncparams&quot; 和 &quot;rsyncexcludes&quot;：两者都必须存在，并且各为一个选项。</translation>
    </message>
    <message>
        <source>The server took the port for the beginning of the folder&apos;s path. Leave the port empty, and put it into ~/.ssh/config.</source>
        <translation>服务器把端口当成了文件夹路径的开头。请将端口留空，并写入 ~/.ssh/config。</translation>
    </message>
    <message>
        <source>The folder in which &quot;%2&quot; is to be made does not exist. Connect its disk, or choose another destination.</source>
        <translation>要在其中创建“%2”的文件夹不存在。请连接其磁盘，或另选目标位置。</translation>
    </message>
    <message>
        <source>The destination is full. Make room there and run it again: what is there is not copied twice.</source>
        <translation>目标位置已满。请在那里腾出空间，然后重新运行：已有的内容不会再次复制。</translation>
    </message>
    <message>
        <source>A file is larger than the destination can take. Choose another disk, or leave the file out.</source>
        <translation>有文件太大，目标位置无法存放。请另选磁盘，或不要包含该文件。</translation>
    </message>
    <message>
        <source>The destination &quot;%2&quot; can only be read. Choose another one.</source>
        <translation>目标位置“%2”是只读的。请另选一个。</translation>
    </message>
    <message>
        <source>You may not read some of the files; they are not copied.</source>
        <translation>有些文件您无权读取；它们未被复制。</translation>
    </message>
    <message>
        <source>You may not write to the destination &quot;%2&quot;. Choose another one, or have its permissions changed.</source>
        <translation>您无权写入目标位置“%2”。请另选一个，或请人更改其权限。</translation>
    </message>
    <message>
        <source>An entry of the list is not where it was; it is not copied. Remove it from the list, or bring it back.</source>
        <translation>列表中有项目已不在原来的位置；它未被复制。请将它移出列表，或把它放回原处。</translation>
    </message>
    <message>
        <source>Files disappeared while they were to be copied. All others are copied; run it again where that matters.</source>
        <translation>有些文件在即将复制时消失了。其他文件均已复制；如果这些文件重要，请重新运行。</translation>
    </message>
    <message>
        <source>A folder that is gone here could not be deleted at the destination: it holds files that rsync leaves alone.</source>
        <translation>有一个文件夹在此处已不存在，但无法在目标位置删除：其中含有 rsync 不处理的文件。</translation>
    </message>
    <message>
        <source>The destination can&apos;t keep all owners, dates or permissions of the files.</source>
        <translation>目标位置无法保留文件的全部所有者、日期或权限。</translation>
    </message>
    <message>
        <source>The connection to &quot;%1&quot; ended early. Run it again: what is there is not copied twice.</source>
        <translation>与“%1”的连接提前结束。请重新运行：已有的内容不会再次复制。</translation>
    </message>
    <message>
        <source>ssh has noted the server&apos;s key, and what it said counts as a failure. Run it once more.</source>
        <translation>ssh 记下了服务器的密钥，而它给出的消息被算作失败。请再运行一次。</translation>
    </message>
    <message>
        <source> Nothing was deleted at the destination.</source>
        <translation> 未在目标位置删除任何内容。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty, and everything in its copy would be deleted. Is its disk connected?</source>
        <translation>“%1”为空，它的副本中的所有内容都会被删除。它的磁盘连接了吗？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie under the common folder &quot;%2&quot; as the list is written, and will not be found. Synchronise it from a profile of its own.</source>
        <translation>按列表中的写法，“%1”不在共同文件夹“%2”之下，将无法找到。请用单独的方案同步它。</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one. Choose another destination.</source>
        <translation>目标位置在“%1”之中，因此每次任务都会复制上次的副本。请另选目标位置。</translation>
    </message>
    <message>
        <source>Copies what is new or was changed here. Files that are newer at the destination stay as they are.</source>
        <translation>复制此处新增或更改的内容。目标位置上较新的文件保持不变。</translation>
    </message>
    <message>
        <source>Copies every file whose content differs, also over a newer one at the destination. All files are read on both sides, which takes long.</source>
        <translation>复制所有内容不同的文件，即使目标位置上的文件较新，也会覆盖。两边的所有文件都要读取，耗时较长。</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. And deletes at the destination, inside the listed folders, what is not here: a second run deletes there what the first one moved there, and then it is nowhere.</source>
        <translation>会移走文件，而不是复制：文件到达目标位置后，从此处删除。同时，在目标位置上列表中的文件夹内，删除此处没有的内容：第二次运行会在目标位置删除第一次移动过去的文件，这样它们在哪里都不复存在。</translation>
    </message>
    <message>
        <source>Deletes at the destination, inside the listed folders, everything that is not here any more.</source>
        <translation>在目标位置上列表中的文件夹内，删除此处已没有的所有内容。</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. Folders stay, empty.</source>
        <translation>会移走文件，而不是复制：文件到达目标位置后，从此处删除。文件夹会留下，但为空。</translation>
    </message>
    <message>
        <source>Deletes nothing, neither here nor there.</source>
        <translation>不删除任何内容，此处和目标位置都不删除。</translation>
    </message>
    <message>
        <source>Without a user the server is sent an empty name, which it refuses: fill one in. Which name is used is for ~/.ssh/config to say; otherwise it is your own.</source>
        <translation>未填写用户时，发送给服务器的用户名为空，会被拒绝：请填写一个。实际使用哪个用户名由 ~/.ssh/config 决定；否则就是您自己的用户名。</translation>
    </message>
    <message>
        <source>The port becomes the beginning of the folder&apos;s path on the server. Leave it empty, and put it into ~/.ssh/config.</source>
        <translation>端口会变成服务器上文件夹路径的开头。请将其留空，并写入 ~/.ssh/config。</translation>
    </message>
    <message>
        <source>The folder must exist on the server: a single file would be stored under its name instead.</source>
        <translation>该文件夹必须已存在于服务器上：否则，单个文件会以该文件夹的名称存放。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will not be found: its path holds that of the common folder &quot;%2&quot; in the wrong place. Synchronise it from a profile of its own.</source>
        <translation>将无法找到“%1”：它的路径在错误的位置包含了共同文件夹“%2”的路径。请用单独的方案同步它。</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one.</source>
        <translation>目标位置在“%1”之中，因此每次任务都会复制上次的副本。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no absolute path. Remove it from the list and add it again.</source>
        <translation>“%1”不是绝对路径。请将它移出列表，然后重新添加。</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; holds a line break, which rsync&apos;s list can&apos;t. Put the folder above it on the list instead.</source>
        <translation>路径“%1”中含有换行符，rsync 的列表无法容纳。请改为将它的上一级文件夹加入列表。</translation>
    </message>
    <message>
        <source>No server is given. Type its name, or switch the remote destination off.</source>
        <translation>未指定服务器。请输入其名称，或关闭远程目标位置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no server&apos;s name.</source>
        <translation>“%1”不是服务器名称。</translation>
    </message>
    <message>
        <source>The list is empty. Add the files and folders that are to be synchronised.</source>
        <translation>列表为空。请添加要同步的文件和文件夹。</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the files go to.</source>
        <translation>未选择目标位置。请选择文件要复制到的文件夹。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is no absolute path. Choose the folder again.</source>
        <translation>目标位置“%1”不是绝对路径。请重新选择文件夹。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is a file. Choose a folder.</source>
        <translation>目标位置“%1”是文件。请选择文件夹。</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is the folder that the files lie in already. Choose another one.</source>
        <translation>目标位置“%1”就是这些文件所在的文件夹。请另选一个。</translation>
    </message>
    <message>
        <source>The destination folder &quot;%1&quot; can&apos;t be made. Choose one that you may write to.</source>
        <translation>无法创建目标文件夹“%1”。请选择您有权写入的文件夹。</translation>
    </message>
    <message>
        <source>Cancelled before it began.
</source>
        <translation>开始之前已取消。
</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>rsync&apos;s message is not readable text.</source>
        <translation>rsync 的消息不是可读的文本。</translation>
    </message>
    <message>
        <source>It ended with status %1 and did not say why; not everything is copied. Run it again.</source>
        <translation>它以状态 %1 结束，没有说明原因；并非所有内容都已复制。请重新运行。</translation>
    </message>
    <message>
        <source>Preview cancelled.</source>
        <translation>预览已取消。</translation>
    </message>
    <message>
        <source>Cancelled. What was copied stays; the next run goes on from there.</source>
        <translation>已取消。已复制的内容会保留；下次任务将从中断处继续。</translation>
    </message>
    <message>
        <source>Failed. %1</source>
        <translation>失败。%1</translation>
    </message>
    <message>
        <source>Synchronised %1 in %2.</source>
        <translation>已同步 %1，用时 %2。</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>复制</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>rsync, the program that copies, reported a problem; its own words follow.</source>
        <translation>负责复制的程序 rsync 报告了问题；它的消息如下。</translation>
    </message>
    <message>
        <source>Beside &quot;%1&quot; there is a name that differs in upper and lower case only. The destination may take both for one, so that only one of them arrives. Rename one of them.</source>
        <translation>“%1”旁边有一个仅大小写不同的名称。目标位置可能把两者视为同一个，因而只有其中一个能到达。请为其中一个改名。</translation>
    </message>
</context>
<context>
    <name>synchronisation</name>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>添加要同步的文件夹和文件</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>选择源文件夹</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>选择同步的目标位置</translation>
    </message>
    <message>
        <source>The profile deletes files, at the destination or here. The window&apos;s preview shows which.</source>
        <translation>此方案会在目标位置或此处删除文件。窗口中的预览会显示是哪些。</translation>
    </message>
    <message>
        <source>Comparing both sides…</source>
        <translation>正在比较两边…</translation>
    </message>
    <message>
        <source>There is more to delete by now. </source>
        <translation>现在要删除的内容更多了。 </translation>
    </message>
    <message>
        <source>Looking at both sides…</source>
        <translation>正在查看两边…</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>正在同步…</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>用时：%1</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>Choose a tool</source>
        <translation>选择工具</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: a name or a password for it holds a zero byte.
</source>
        <translation>无法启动“%1”：交给它的名称或密码含有零字节。
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2 (%3).
</source>
        <translation>“%1”被信号 %2（%3）结束。
</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: %2. Choose the tool&apos;s path on the Tools tab.</source>
        <translation>无法启动“%1”：%2。请在“工具”标签页选择该工具的路径。</translation>
    </message>
    <message>
        <source>This OpenSSL can&apos;t be used by itself: it makes something else of a password than archives of this program need, and complains of it. Choose Quillorent&apos;s own &quot;openssl&quot;, which uses it.</source>
        <translation>此 OpenSSL 不能单独使用：它处理密码的方式与本程序的归档所需的不同，并会就此给出警告。请选择 Quillorent 自带的“openssl”，它会调用此 OpenSSL。</translation>
    </message>
    <message>
        <source>the tool&apos;s message is not readable text</source>
        <translation>工具的消息不是可读的文本</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListModel</name>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>comes with the first volume of its set</source>
        <translation>随其分卷组的第一个分卷一起处理</translation>
    </message>
    <message>
        <source>not extracted: its path has &quot;part&quot; and a number, as later volumes have it</source>
        <translation>未提取：它的路径中有“part”和数字，与后续分卷的名称相似</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>归档</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListView</name>
    <message>
        <source>Drop archives, or a folder of them, here, or press Add</source>
        <translation>将归档或存放归档的文件夹拖放到此处，或按“添加”</translation>
    </message>
</context>
<context>
    <name>ui::BackupList</name>
    <message>
        <source>its first part is missing</source>
        <translation>缺少第一部分</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>不完整</translation>
    </message>
    <message>
        <source>Incomplete or mixed: %1.</source>
        <translation>不完整或有混杂：%1。</translation>
    </message>
    <message>
        <source>What was backed up</source>
        <translation>备份内容</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>ui::BackupOffer</name>
    <message>
        <source>Bac&amp;kups in &quot;%1&quot;: tick what you want back</source>
        <translation>“%1”中的备份：请勾选要还原的(&amp;K)</translation>
    </message>
</context>
<context>
    <name>ui::BackupResult</name>
    <message>
        <source>1 folder</source>
        <translation>1 个文件夹</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n 个文件夹</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>3 of 4 folders</comment>
        <translation>%2中的 %1 个</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>48 GB in 11 min</comment>
        <translation>%1，用时 %2</translation>
    </message>
    <message>
        <source>Backed up %1</source>
        <translation>%1 完成备份</translation>
    </message>
    <message>
        <source>Cancelled %1</source>
        <translation>%1 已取消</translation>
    </message>
    <message>
        <source>backed up by then: %1</source>
        <translation>此前已备份：%1</translation>
    </message>
    <message>
        <source>The backup that began %1 was interrupted</source>
        <translation>%1 开始的备份被中断</translation>
    </message>
    <message>
        <source>Backed up %1, but not everything</source>
        <translation>%1 完成备份，但有内容未备份</translation>
    </message>
    <message>
        <source>The backup failed %1</source>
        <translation>%1 备份失败</translation>
    </message>
    <message>
        <source>backed up: %1</source>
        <translation>已备份：%1</translation>
    </message>
    <message>
        <source>What failed: “%1” – %2</source>
        <translation>失败的项目：“%1” – %2</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>处理办法：%1</translation>
    </message>
    <message>
        <source>What to do: back up again. The next backup first puts in order what this one left.</source>
        <translation>处理办法：重新备份。下次备份会先清理这次遗留的内容。</translation>
    </message>
    <message>
        <source>Left out: “%1” – %2. Connect its disk, or take it off the list.</source>
        <translation>已跳过：“%1” – %2。请连接其磁盘，或将它移出列表。</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;, which is not encrypted</source>
        <translation>遗留的内容：“%1”，未加密</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;</source>
        <translation>遗留的内容：“%1”</translation>
    </message>
    <message>
        <source>“%1” was in the way and is called “%2” now.</source>
        <translation>“%1”占用了位置，现已改名为“%2”。</translation>
    </message>
    <message>
        <source>What was left: nothing. Archives from earlier backups are as they were.</source>
        <translation>遗留的内容：无。先前备份的归档保持原样。</translation>
    </message>
    <message>
        <source>What failed, what to do and what was left</source>
        <translation>失败的项目、处理办法和遗留的内容</translation>
    </message>
</context>
<context>
    <name>ui::CompressionHint</name>
    <message>
        <source>archives about %1 % smaller</source>
        <translation>归档约小 %1%</translation>
    </message>
    <message>
        <source>gains next to nothing here</source>
        <translation>在此几乎没有效果</translation>
    </message>
</context>
<context>
    <name>ui::ContentsModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>修改时间</translation>
    </message>
</context>
<context>
    <name>ui::ContentsSheet</name>
    <message numerus="yes">
        <source>%n second(s)</source>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>What &quot;%1&quot; holds</source>
        <translation>“%1”中的内容</translation>
    </message>
    <message>
        <source>Nothing is chosen yet: tick files or folders.</source>
        <translation>尚未选择任何内容：请勾选文件或文件夹。</translation>
    </message>
    <message>
        <source>Chosen: %1, %2. It takes about %3, as looking into the archive did: all of it has to be decrypted for that. Nothing of yours is replaced: a file that is there and differs gets a name that begins with &quot;kept-&quot;.</source>
        <translation>已选择：%1，%2。约需 %3，与查看归档所用的时间相同：因为必须解密整个归档。您的文件不会被替换：已有且内容不同的文件会改用以“kept-”开头的名称。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::FirstSteps</name>
    <message>
        <source>Your first backup, in three steps</source>
        <translation>只需三步，完成第一次备份</translation>
    </message>
    <message>
        <source>What is to be kept safe?</source>
        <translation>要保护什么？</translation>
    </message>
    <message>
        <source>Choose the folders that you can&apos;t do without, or drop them here.</source>
        <translation>请选择对您不可或缺的文件夹，或将它们拖放到此处。</translation>
    </message>
    <message>
        <source>Choose folders…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Where to?</source>
        <translation>备份到哪里？</translation>
    </message>
    <message>
        <source>Choose a folder on another disk: one that breaks or is stolen takes all with it.</source>
        <translation>请选择另一个磁盘上的文件夹：一个磁盘损坏或被盗，上面的一切都会一起丢失。</translation>
    </message>
    <message>
        <source>Choose a place…</source>
        <translation>选择位置…</translation>
    </message>
    <message>
        <source>What locks it?</source>
        <translation>用什么上锁？</translation>
    </message>
    <message>
        <source>Think of a password. Without it nobody can open the backup, you neither: write it down in a safe place.</source>
        <translation>请想一个密码。没有它，任何人都无法打开备份，您自己也不行：请写下来，放在安全的地方。</translation>
    </message>
    <message>
        <source>Set a password…</source>
        <translation>设置密码…</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Skip: %1</source>
        <translation>跳过：%1</translation>
    </message>
</context>
<context>
    <name>ui::FolderListModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Last backed up</source>
        <translation>上次备份</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>neither file nor folder</source>
        <translation>不是文件或文件夹</translation>
    </message>
    <message>
        <source>only a link</source>
        <translation>仅为链接</translation>
    </message>
    <message>
        <source>holds the destination</source>
        <translation>包含目标位置</translation>
    </message>
    <message>
        <source>Neither a file nor a folder, and left out by a backup. Remove it.</source>
        <translation>既不是文件也不是文件夹，备份时会跳过。请将它移除。</translation>
    </message>
    <message>
        <source>A link to another place: only the link itself would be backed up. Add the folder that it leads to.</source>
        <translation>指向另一位置的链接：只会备份链接本身。请添加它指向的文件夹。</translation>
    </message>
    <message>
        <source>The archives go into this folder, so each would hold the ones before it. Choose another destination.</source>
        <translation>归档存放在此文件夹中，因此每个归档都会包含先前的归档。请另选目标位置。</translation>
    </message>
    <message>
        <source>…</source>
        <comment>a size that is being measured</comment>
        <translation>…</translation>
    </message>
    <message>
        <source>never</source>
        <translation>从未</translation>
    </message>
    <message>
        <source>Not found, and left out. Connect its disk, or remove it.</source>
        <translation>未找到，会跳过。请连接其磁盘，或将它移除。</translation>
    </message>
</context>
<context>
    <name>ui::FolderListView</name>
    <message>
        <source>Drop folders here, or press Add</source>
        <translation>将文件夹拖放到此处，或按“添加”</translation>
    </message>
</context>
<context>
    <name>ui::FoldersPage</name>
    <message>
        <source>not a size</source>
        <translation>不是有效的大小</translation>
    </message>
    <message>
        <source>700 MB – a CD</source>
        <translation>700 MB – CD</translation>
    </message>
    <message>
        <source>4.7 GB – a DVD</source>
        <translation>4.7 GB – DVD</translation>
    </message>
    <message>
        <source>25 GB – a Blu-ray disc</source>
        <translation>25 GB – 蓝光光盘</translation>
    </message>
    <message>
        <source>None – one file an archive</source>
        <translation>不拆分 – 每个归档一个文件</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 可用</translation>
    </message>
    <message>
        <source>Only %1 free, and a backup needs about %2 while it works</source>
        <translation>仅 %1 可用，而备份期间约需 %2</translation>
    </message>
    <message>
        <source>%1 free; a backup needs about %2 while it works</source>
        <translation>%1 可用；备份期间约需 %2</translation>
    </message>
    <message>
        <source>%1 – it opens the archives that are there</source>
        <translation>%1 – 可以打开现有的归档</translation>
    </message>
    <message>
        <source>%1 – it does not open the archives that are there</source>
        <translation>%1 – 打不开现有的归档</translation>
    </message>
    <message>
        <source>in files of %1</source>
        <translation>拆分为 %1 的文件</translation>
    </message>
    <message>
        <source>one file a folder</source>
        <translation>每个文件夹一个文件</translation>
    </message>
    <message>
        <source>made smaller</source>
        <translation>经过压缩</translation>
    </message>
    <message>
        <source>dated like the newest file</source>
        <translation>日期与最新的文件一致</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between properties of the archives</comment>
        <translation>、 </translation>
    </message>
</context>
<context>
    <name>ui::HindranceList</name>
    <message>
        <source>Go to the list</source>
        <translation>转到列表</translation>
    </message>
    <message>
        <source>Choose the place</source>
        <translation>选择位置</translation>
    </message>
    <message>
        <source>Go to the password</source>
        <translation>转到密码</translation>
    </message>
    <message>
        <source>Go to the certificate</source>
        <translation>转到证书</translation>
    </message>
    <message>
        <source>Go to the size</source>
        <translation>转到大小</translation>
    </message>
    <message>
        <source>Go to the tools</source>
        <translation>转到工具</translation>
    </message>
    <message>
        <source>Still missing for a backup:</source>
        <translation>备份还缺少：</translation>
    </message>
</context>
<context>
    <name>ui::LevelBar</name>
    <message>
        <source>%1 of %2 tools are in order</source>
        <translation>%2 个工具中 %1 个正常</translation>
    </message>
    <message>
        <source>No tools checked</source>
        <translation>尚未检查工具</translation>
    </message>
</context>
<context>
    <name>ui::PathListView</name>
    <message>
        <source>Let go to add to the list</source>
        <translation>松开以添加到列表</translation>
    </message>
</context>
<context>
    <name>ui::PreviewTableView</name>
    <message>
        <source>What happens</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
</context>
<context>
    <name>ui::ProgressFigures</name>
    <message>
        <source>What</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>用时：%1</translation>
    </message>
</context>
<context>
    <name>ui::RemovalUndo</name>
    <message>
        <source>Undo removing from the list</source>
        <translation>撤销从列表中移除</translation>
    </message>
    <message>
        <source>“%1” is off the list.</source>
        <translation>“%1”已移出列表。</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are off the list.</source>
        <translation>
            <numerusform>%n 个项目已移出列表。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::RunNotices</name>
    <message>
        <source>Files restored</source>
        <translation>文件已还原</translation>
    </message>
    <message>
        <source>Restoring failed</source>
        <translation>还原失败</translation>
    </message>
    <message>
        <source>Folders synchronised</source>
        <translation>文件夹已同步</translation>
    </message>
    <message>
        <source>The synchronisation failed</source>
        <translation>同步失败</translation>
    </message>
    <message>
        <source>Backup finished</source>
        <translation>备份已完成</translation>
    </message>
    <message>
        <source>The backup failed</source>
        <translation>备份失败</translation>
    </message>
    <message>
        <source>Archive looked into</source>
        <translation>归档已查看</translation>
    </message>
    <message>
        <source>The archive can&apos;t be looked into</source>
        <translation>无法查看归档</translation>
    </message>
</context>
<context>
    <name>ui::SizeEdit</name>
    <message>
        <source>%1 %2B</source>
        <translation>%1 %2B</translation>
    </message>
</context>
<context>
    <name>ui::StepperButtons</name>
    <message>
        <source>Larger</source>
        <translation>增大</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>减小</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableModel</name>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>makes and opens archives</source>
        <translation>制作和打开归档</translation>
    </message>
    <message>
        <source>encrypts and decrypts</source>
        <translation>加密和解密</translation>
    </message>
    <message>
        <source>copies what has changed</source>
        <translation>复制有变化的内容</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>right tool</source>
        <translation>工具正确</translation>
    </message>
    <message>
        <source>not usable</source>
        <translation>无法使用</translation>
    </message>
    <message>
        <source>The file is missing, can&apos;t be run, or is another program.</source>
        <translation>文件不存在、无法运行，或是其他程序。</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableView</name>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose the file of %1</source>
        <translation>选择 %1 的文件</translation>
    </message>
</context>
<context>
    <name>ui::UnsavedChanges</name>
    <message>
        <source>All changes saved</source>
        <translation>所有更改均已保存</translation>
    </message>
    <message>
        <source>Changes are saved when you quit</source>
        <translation>更改将在退出时保存</translation>
    </message>
    <message>
        <source>Profiles and settings not saved yet</source>
        <translation>方案和设置尚未保存</translation>
    </message>
    <message>
        <source>Profiles not saved yet</source>
        <translation>方案尚未保存</translation>
    </message>
    <message>
        <source>Settings not saved yet</source>
        <translation>设置尚未保存</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>要保存更改吗？</translation>
    </message>
    <message>
        <source>There are changes that are not saved.</source>
        <translation>有未保存的更改。</translation>
    </message>
    <message>
        <source>Without saving they are lost when the program ends.</source>
        <translation>如果不保存，程序结束时这些更改会丢失。</translation>
    </message>
</context>
<context>
    <name>updates</name>
    <message>
        <source>Version %1 is there. You have version %2.</source>
        <translation>已有版本 %1。您的版本是 %2。</translation>
    </message>
    <message>
        <source>it is no RSS feed</source>
        <translation>它不是 RSS 源</translation>
    </message>
</context>
</TS>
