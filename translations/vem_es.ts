<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Advisories</name>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Bug fix</source>
        <translation>Corrección</translation>
    </message>
    <message>
        <source>Enhancement</source>
        <translation>Mejora</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>Paquete nuevo</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítica</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>Importante</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Moderada</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
</context>
<context>
    <name>Advisories::Model</name>
    <message>
        <source>Open</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>Aplicado</translation>
    </message>
    <message>
        <source>Whether a newer version of an installed package is advised</source>
        <translation>Si se aconseja una versión más nueva de un paquete instalado</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>What the advisory is about</source>
        <translation>De qué trata el aviso</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>How grave it is, as the repository words it</source>
        <translation>Su gravedad, según las palabras del repositorio</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Name of the advisory</source>
        <translation>Nombre del aviso</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>When the advisory was issued</source>
        <translation>Cuándo se emitió el aviso</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Emitido</translation>
    </message>
    <message>
        <source>How many versions of packages it names</source>
        <translation>Cuántas versiones de paquetes nombra</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Paquetes</translation>
    </message>
    <message>
        <source>What it says in short</source>
        <translation>Lo que dice en breve</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Known vulnerabilities that it is about</source>
        <translation>Vulnerabilidades conocidas de las que trata</translation>
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
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>No instalado</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>Aplicado</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nombre del paquete</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Version that the advisory names</source>
        <translation>Versión que nombra el aviso</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Version that is installed</source>
        <translation>Versión instalada</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Instalado</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Arquitectura del paquete</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Whether what is installed is older</source>
        <translation>Si lo instalado es más antiguo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>Advisories::Reader</name>
    <message>
        <source>Unable to read the advisories</source>
        <translation>No se pueden leer los avisos</translation>
    </message>
</context>
<context>
    <name>Advisories::Window</name>
    <message>
        <source>Advisories</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Los metadatos de los repositorios en uso no contienen avisos.</translation>
    </message>
    <message>
        <source>No advisory is about an installed package.</source>
        <translation>Ningún aviso trata de un paquete instalado.</translation>
    </message>
    <message>
        <source>No advisory fits what is to be shown.</source>
        <translation>Ningún aviso encaja con lo que se quiere mostrar.</translation>
    </message>
    <message>
        <source>Advisories about installed packages, the latest first</source>
        <translation>Avisos sobre paquetes instalados, el último primero</translation>
    </message>
    <message>
        <source>Open Security Advisories</source>
        <translation>Avisos de seguridad pendientes</translation>
    </message>
    <message>
        <source>Open Advisories</source>
        <translation>Avisos pendientes</translation>
    </message>
    <message>
        <source>All Advisories</source>
        <translation>Todos los avisos</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Open is an advisory that names a newer version of an installed package</source>
        <translation>Está pendiente un aviso que nombra una versión más nueva de un paquete instalado</translation>
    </message>
    <message>
        <source>part of an identifier, a title or a CVE</source>
        <translation>parte de un identificador, un título o una CVE</translation>
    </message>
    <message>
        <source>Shows only the advisories with this text in their identifier, title or CVEs</source>
        <translation>Muestra solo los avisos con este texto en su identificador, título o CVE</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>The chosen advisory</source>
        <translation>El aviso elegido</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Paquetes</translation>
    </message>
    <message>
        <source>Packages that the chosen advisory names</source>
        <translation>Paquetes que nombra el aviso elegido</translation>
    </message>
    <message>
        <source>&amp;Mark Its Updates</source>
        <translation>&amp;Marcar sus actualizaciones</translation>
    </message>
    <message>
        <source>Marks the packages of the chosen advisory for an update</source>
        <translation>Marca los paquetes del aviso elegido para actualizarlos</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close the advisories</source>
        <translation>Cerrar los avisos</translation>
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
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>DetailsModel</name>
    <message>
        <source>What happens to the package</source>
        <translation>Qué ocurre con el paquete</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nombre del paquete</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Installed version, and the version that takes its place</source>
        <translation>Versión instalada y la versión que ocupa su lugar</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Arquitectura del paquete</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Where the package comes from</source>
        <translation>De dónde viene el paquete</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Repositorio</translation>
    </message>
    <message>
        <source>What is downloaded; of a package that goes, what it takes on the disk</source>
        <translation>Lo que se descarga; de un paquete que se quita, lo que ocupa en el disco</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Why the package is part of the transaction</source>
        <translation>Por qué el paquete forma parte de la transacción</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Por qué</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>Bajar de versión</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Reinstalar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>marcado</translation>
    </message>
    <message>
        <source>required by %1</source>
        <translation>requerido por %1</translation>
    </message>
    <message>
        <source>recommended by %1</source>
        <translation>recomendado por %1</translation>
    </message>
    <message>
        <source>goes together with %1</source>
        <translation>va junto con %1</translation>
    </message>
    <message>
        <source>needs %1</source>
        <translation>necesita %1</translation>
    </message>
    <message>
        <source>replaced by %1</source>
        <translation>reemplazado por %1</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>ya no se necesita</translation>
    </message>
    <message>
        <source>to resolve dependencies</source>
        <translation>para resolver dependencias</translation>
    </message>
    <message>
        <source>%1; replaces %2</source>
        <translation>%1; reemplaza a %2</translation>
    </message>
    <message>
        <source>Removed without being marked: %1</source>
        <translation>Se quita sin estar marcado: %1</translation>
    </message>
    <message>
        <source>Protected, and goes all the same: %1</source>
        <translation>Protegido y se quita de todos modos: %1</translation>
    </message>
    <message>
        <source>The running kernel goes: %1</source>
        <translation>Se quita el núcleo en ejecución: %1</translation>
    </message>
    <message>
        <source>Older than the installed version: %1</source>
        <translation>Más antiguo que la versión instalada: %1</translation>
    </message>
    <message>
        <source>Signature not checked, by the configuration of the repository: %1</source>
        <translation>Firma sin comprobar, según la configuración del repositorio: %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>one version too many</source>
        <translation>una versión de más</translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>What you may not expect of this transaction</source>
        <translation>Lo que quizá no espera de esta transacción</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To download: %1</source>
        <translation>A descargar: %1</translation>
    </message>
    <message>
        <source>On the disk: no change</source>
        <translation>En el disco: sin cambio</translation>
    </message>
    <message>
        <source>On the disk: %1 more</source>
        <translation>En el disco: %1 más</translation>
    </message>
    <message>
        <source>On the disk: %1 less</source>
        <translation>En el disco: %1 menos</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>The packages of the transaction, and why each is part of it</source>
        <translation>Los paquetes de la transacción y por qué cada uno forma parte de ella</translation>
    </message>
    <message>
        <source>Load &amp;Changes</source>
        <translation>Cargar &amp;cambios</translation>
    </message>
    <message>
        <source>Reads the changelogs of the repositories, which may have to be downloaded</source>
        <translation>Lee los registros de cambios de los repositorios, que quizá haya que descargar</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>What has changed since the installed versions</source>
        <translation>Qué ha cambiado desde las versiones instaladas</translation>
    </message>
    <message>
        <source>The changelogs are being read…</source>
        <translation>Leyendo los registros de cambios…</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new of %1.</source>
        <translation>Los registros de cambios no dicen nada nuevo de %1.</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new.</source>
        <translation>Los registros de cambios no dicen nada nuevo.</translation>
    </message>
</context>
<context>
    <name>EmptyTableNote</name>
    <message>
        <source>There are no packages.</source>
        <translation>No hay paquetes.</translation>
    </message>
    <message>
        <source>Nothing matches %1 in %2.</source>
        <extracomment>%1 is an expression, %2 one of the choices beside it, such as &quot;View All&quot;</extracomment>
        <translation>Nada en «%2» coincide con %1.</translation>
    </message>
    <message>
        <source>There is nothing in %1.</source>
        <extracomment>%1 is one of the choices above the table, such as &quot;View Updatable&quot;</extracomment>
        <translation>No hay nada en «%1».</translation>
    </message>
    <message>
        <source>%1 match in %2</source>
        <extracomment>%1 is a number of rows, %2 is &quot;View All&quot;</extracomment>
        <translation>%1 coinciden en «%2»</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en «%2»</translation>
    </message>
    <message>
        <source>%1 match among groups</source>
        <translation>%1 coinciden entre los grupos</translation>
    </message>
    <message>
        <source>%1 among groups</source>
        <translation>%1 entre los grupos</translation>
    </message>
    <message>
        <source>%1 match without case</source>
        <translation>%1 coinciden sin distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>Vaciar la expresión</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Los metadatos de los repositorios en uso no contienen avisos.</translation>
    </message>
</context>
<context>
    <name>Execute</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>fork() failed; errno = %1 (%2)</source>
        <translation>Error de fork(); errno = %1 (%2)</translation>
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
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Done</source>
        <translation>Hecha</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallida</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Interrumpida</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Instalado</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Downgraded</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>Reinstalled</source>
        <translation>Reinstalado</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>Obsoleto</translation>
    </message>
    <message>
        <source>Reason changed</source>
        <translation>Motivo cambiado</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Sustituido</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Cambiado</translation>
    </message>
    <message>
        <source>user</source>
        <translation>usuario</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>dependency</source>
        <translation>dependencia</translation>
    </message>
    <message>
        <source>weak dependency</source>
        <translation>dependencia débil</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>ya no hace falta</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>otro programa</translation>
    </message>
    <message>
        <source>Groups: %1</source>
        <translation>Grupos: %1</translation>
    </message>
</context>
<context>
    <name>History::Model</name>
    <message>
        <source>Number of the transaction, as the package library counts</source>
        <translation>Número de la transacción, según cuenta la biblioteca de paquetes</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>When the transaction began</source>
        <translation>Cuándo empezó la transacción</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Who had logged in</source>
        <translation>Quién había iniciado la sesión</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>What came of the transaction</source>
        <translation>En qué quedó la transacción</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>What was done to how many packages and groups</source>
        <translation>Qué se hizo con cuántos paquetes y grupos</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Command line of the program that did it</source>
        <translation>Línea de órdenes del programa que lo hizo</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>What the user has noted</source>
        <translation>Lo que anotó el usuario</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
</context>
<context>
    <name>History::PackagesModel</name>
    <message>
        <source>%1: failed</source>
        <translation>%1: falló</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Grupo %1</translation>
    </message>
    <message>
        <source>What was done to the package</source>
        <translation>Qué se hizo con el paquete</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nombre del paquete</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Version before, and the version that took its place</source>
        <translation>Versión anterior, y la versión que ocupó su lugar</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Arquitectura del paquete</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Where the package came from</source>
        <translation>De dónde vino el paquete</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Repositorio</translation>
    </message>
    <message>
        <source>Why the package was installed</source>
        <translation>Por qué estaba instalado el paquete</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
</context>
<context>
    <name>History::Records</name>
    <message>
        <source>Unable to read the history of transactions</source>
        <translation>No se puede leer el historial de transacciones</translation>
    </message>
</context>
<context>
    <name>History::Window</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>No transaction is known.</source>
        <translation>No se conoce ninguna transacción.</translation>
    </message>
    <message>
        <source>No transaction fits the search.</source>
        <translation>Ninguna transacción encaja con la búsqueda.</translation>
    </message>
    <message>
        <source>Transaction %1: %2</source>
        <translation>Transacción %1: %2</translation>
    </message>
    <message>
        <source>Begun: %1</source>
        <translation>Empezada: %1</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Usuario: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Orden: %1</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>Comentario: %1</translation>
    </message>
    <message>
        <source>The scripts of the packages wrote nothing.</source>
        <translation>Los guiones de los paquetes no escribieron nada.</translation>
    </message>
    <message>
        <source>The package library doesn&apos;t keep what scripts of packages write.</source>
        <translation>La biblioteca de paquetes no guarda lo que escriben los guiones de los paquetes.</translation>
    </message>
    <message>
        <source>The helper script in use is too old for changes by the history</source>
        <translation>El guion auxiliar en uso es demasiado antiguo para hacer cambios según el historial</translation>
    </message>
    <message>
        <source>Do the opposite of the chosen transaction</source>
        <translation>Hacer lo contrario de la transacción elegida</translation>
    </message>
    <message>
        <source>Do the chosen transaction once more</source>
        <translation>Hacer otra vez la transacción elegida</translation>
    </message>
    <message>
        <source>Undo all transactions behind the chosen one</source>
        <translation>Deshacer todas las transacciones posteriores a la elegida</translation>
    </message>
    <message>
        <source>Not all of it can be done:</source>
        <translation>No todo se puede hacer:</translation>
    </message>
    <message>
        <source>Go on with the rest? What exactly is done is shown before, and asked once more.</source>
        <translation>¿Seguir con el resto? Antes se muestra qué se hace exactamente y se pregunta otra vez.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>All transactions, the latest first</source>
        <translation>Todas las transacciones, la última primero</translation>
    </message>
    <message>
        <source>part of a name, or a pattern such as kernel*</source>
        <translation>parte de un nombre, o un patrón como kernel*</translation>
    </message>
    <message>
        <source>Shows only the transactions about packages whose name, version and
architecture hold this text or, with * or ?, match it</source>
        <translation>Muestra solo las transacciones de paquetes cuyo nombre, versión y
arquitectura contienen este texto o, con * o ?, encajan con él</translation>
    </message>
    <message>
        <source>Pac&amp;kage:</source>
        <translation>Pa&amp;quete:</translation>
    </message>
    <message>
        <source>The chosen transaction</source>
        <translation>La transacción elegida</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Paquetes</translation>
    </message>
    <message>
        <source>What the chosen transaction did</source>
        <translation>Qué hizo la transacción elegida</translation>
    </message>
    <message>
        <source>Script Output</source>
        <translation>Salida de guiones</translation>
    </message>
    <message>
        <source>What scripts of the packages wrote during the transaction</source>
        <translation>Qué escribieron los guiones de los paquetes durante la transacción</translation>
    </message>
    <message>
        <source>&amp;Packages</source>
        <translation>&amp;Paquetes</translation>
    </message>
    <message>
        <source>&amp;Script Output</source>
        <translation>&amp;Salida de guiones</translation>
    </message>
    <message>
        <source>&amp;Undo This</source>
        <translation>&amp;Deshacer esta</translation>
    </message>
    <message>
        <source>&amp;Roll Back To Here</source>
        <translation>&amp;Volver hasta aquí</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;This Transaction...</source>
        <translation>&amp;Esta transacción...</translation>
    </message>
    <message>
        <source>&amp;All Transactions...</source>
        <translation>&amp;Todas las transacciones...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Write transactions into a file, as text or JSON</source>
        <translation>Escribir transacciones en un archivo, como texto o JSON</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close the history</source>
        <translation>Cerrar el historial</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>Transacción</translation>
    </message>
</context>
<context>
    <name>KeyDialog</name>
    <message>
        <source>Import Key</source>
        <translation>Importar clave</translation>
    </message>
    <message>
        <source>Fetch Key</source>
        <translation>Obtener clave</translation>
    </message>
    <message>
        <source>Is this key to be trusted? Everything that it has signed is accepted from then on. Import it only if you know its fingerprint from elsewhere, such as its owner&apos;s pages.</source>
        <translation>¿Se debe confiar en esta clave? A partir de entonces se acepta todo lo que haya firmado. Impórtela solo si conoce su huella digital por otra vía, como las páginas de su propietario.</translation>
    </message>
    <message>
        <source>A key that is missing is to be fetched from the address below. Nothing is trusted yet: you see the key before it is imported.</source>
        <translation>Se va a obtener una clave que falta de la dirección de abajo. Todavía no se confía en nada: verá la clave antes de que se importe.</translation>
    </message>
    <message>
        <source>User ID:</source>
        <translation>ID de usuario:</translation>
    </message>
    <message>
        <source>Fingerprint:</source>
        <translation>Huella digital:</translation>
    </message>
    <message>
        <source>Key ID:</source>
        <translation>ID de clave:</translation>
    </message>
    <message>
        <source>%1 (short: %2)</source>
        <translation>%1 (corto: %2)</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Creada:</translation>
    </message>
    <message>
        <source>Expires:</source>
        <translation>Caduca:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Transporte:</translation>
    </message>
    <message>
        <source>a file of this system</source>
        <translation>un archivo de este sistema</translation>
    </message>
    <message>
        <source>https: encrypted, from a server that has proved its name</source>
        <translation>https: cifrado, de un servidor que ha demostrado su nombre</translation>
    </message>
    <message>
        <source>%1: not encrypted. Anybody on the way may have exchanged the key.</source>
        <translation>%1: sin cifrar. Cualquiera que esté en el camino puede haber cambiado la clave.</translation>
    </message>
    <message>
        <source>Repository:</source>
        <translation>Repositorio:</translation>
    </message>
    <message>
        <source>Signed with it:</source>
        <translation>Firmado con ella:</translation>
    </message>
    <message>
        <source>the metadata of the repository</source>
        <translation>los metadatos del repositorio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>https: encrypted, but any server may answer, since sslverify is switched off. Anybody on the way may have exchanged the key.</source>
        <translation>https: cifrado, pero puede responder cualquier servidor, porque sslverify está desactivado. Quien esté en el camino puede haber cambiado la clave.</translation>
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
        <translation>VEM - Registro</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation>Nivel de detalle</translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation>Umbral a partir del cual se omiten los mensajes de registro más detallados.
Los niveles más altos muestran más detalle.
El intervalo válido es 0 .. %1.
El valor predeterminado es %2.
Los niveles más altos contienen información de depuración.
Corresponde a la opción debuglevel (-d) de yum.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation>Cerrar la ventana del registro</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation>Limpiar las cabeceras de paquetes RPM de la caché local en %1</translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation>Limpiar los paquetes RPM de la caché local en %1
(útil para recuperar espacio en disco)</translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation>Limpiar los metadatos XML de la caché local en %1
(útil junto con Limpiar datos serializados para
 forzar la descarga de nuevas listas de paquetes disponibles)</translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation>Limpiar los datos serializados (pickle) de la caché local en %1
(útil junto con Limpiar metadatos XML para
 forzar la descarga de nuevas listas de paquetes disponibles)</translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation>Limpiar todos los datos de la caché local en %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation>Expresión regular que se compara con todos los campos de cada paquete</translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation>Expresión regular que filtra por los campos de texto visibles en la tabla</translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation>Buscar la expresión regular indicada a la izquierda</translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation>Aplicar el filtro indicado a la izquierda</translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation>Método con el que una expresión regular selecciona los paquetes de la tabla:
	Filtrar usa los campos de texto visibles en la tabla, como si estuvieran separados por espacios.
	Buscar usa todos los campos de los paquetes, incluidos la lista de archivos, el registro de cambios,
	las dependencias, etc., cada uno por separado.  Es bastante más lento.</translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation>%1 (Requiere cargar datos adicionales.)</translation>
    </message>
    <message>
        <source>VEM - %1</source>
        <translation>VEM - %1</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programa</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Ventanas</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Registro</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation>&amp;Repositorios</translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation>&amp;Editar configuración</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Cache</source>
        <translation>&amp;Caché</translation>
    </message>
    <message>
        <source>Clean Headers</source>
        <translation>Limpiar cabeceras</translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation>Limpiar paquetes</translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation>Limpiar metadatos XML</translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation>Limpiar datos serializados</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Limpiar todo</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation>Manual (html)</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation>Manual (PDF)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Filter or Search</source>
        <translation>Filtrar o buscar</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expresión regular</translation>
    </message>
    <message>
        <source>View Updatable</source>
        <translation>Ver actualizables</translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation>Ver instalables</translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation>Ver eliminables</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Ver todos</translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation>Mostrar solo los paquetes que se pueden actualizar,
instalar o eliminar, o mostrar todos los paquetes</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation>Incluir grupos</translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation>Indica si el filtro incluye los grupos de paquetes</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>&amp;Describir</translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation>Abrir una ventana con la descripción detallada del paquete seleccionado</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>Ajus&amp;tar</translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation>Ajustar las columnas y la ventana al tamaño óptimo</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Recar&amp;gar</translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation>Recargar la lista de paquetes instalados y de paquetes disponibles para actualizar.
Úselo para comprobar si hay nuevas actualizaciones en los repositorios o si se han instalado paquetes manualmente.</translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation>Marcar &amp;selección (instalar/actualizar)</translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>Asigna la acción Instalar a todos los paquetes seleccionados que no están instalados
y la acción Actualizar a todos los seleccionados que están instalados pero desactualizados.
No aplica las acciones automáticamente.</translation>
    </message>
    <message>
        <source>Set &amp;Update of All Out-of-Date</source>
        <translation>&amp;Marcar todas las actualizaciones</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>Asigna la acción Actualizar a todos los paquetes instalados pero desactualizados.
No aplica las acciones automáticamente.</translation>
    </message>
    <message>
        <source>&amp;Clear Actions</source>
        <translation>&amp;Borrar acciones</translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation>Borra todas las acciones indicadas (actualizar, instalar y eliminar)</translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation>&amp;Aplicar acciones</translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation>Aplica las acciones indicadas (actualizar, instalar y eliminar)</translation>
    </message>
    <message>
        <source>Item Progress</source>
        <translation>Progreso del elemento</translation>
    </message>
    <message>
        <source>Total Progress</source>
        <translation>Progreso total</translation>
    </message>
    <message>
        <source>VEM</source>
        <translation>VEM</translation>
    </message>
    <message>
        <source>Unfinished Transaction</source>
        <translation>Transacción inacabada</translation>
    </message>
    <message>
        <source>Shall the older versions be removed? What exactly is done is shown before, and asked once more.</source>
        <translation>¿Desea eliminar las versiones anteriores? Antes se muestra qué se hará exactamente y se pregunta otra vez.</translation>
    </message>
    <message>
        <source>&amp;Remove Older Versions</source>
        <translation>&amp;Eliminar versiones anteriores</translation>
    </message>
    <message>
        <source>&amp;Leave Them</source>
        <translation>&amp;Dejarlas</translation>
    </message>
    <message>
        <source>Not everything that is configured could be used, so the table may not show what it should:</source>
        <translation>No se pudo usar todo lo que está configurado, así que la tabla puede no mostrar lo que debería:</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>Tabla incompleta</translation>
    </message>
    <message>
        <source>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, es una interfaz gráfica que permite modificar los paquetes rpm instalados en un sistema.&lt;/p&gt;&lt;p&gt;Funciones:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Instalar paquetes nuevos o actualizar los existentes descargándolos de un repositorio de paquetes yum&lt;/li&gt;&lt;li&gt;Eliminar paquetes existentes&lt;/li&gt;&lt;li&gt;Configurar los repositorios de los que se obtienen paquetes nuevos y actualizados&lt;/li&gt;&lt;li&gt;Examinar los paquetes instalados o disponibles para instalar o actualizar&lt;/li&gt;&lt;li&gt;Instalar, actualizar o eliminar grupos de paquetes&lt;/li&gt;&lt;li&gt;Instalar o actualizar suites de paquetes&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Package library: %1&lt;/p&gt;</source>
        <translation>&lt;p&gt;Biblioteca de paquetes: %1&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Web page: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;Página web: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What the program remembers was damaged; it has been put aside as %1</source>
        <translation>Lo que el programa recuerda estaba dañado; se ha apartado como %1</translation>
    </message>
    <message>
        <source>Actions that are gone with their rows: %1</source>
        <translation>Acciones perdidas con sus filas: %1</translation>
    </message>
    <message>
        <source>View Marked</source>
        <translation>Ver marcados</translation>
    </message>
    <message>
        <source>&amp;Reset Window</source>
        <translation>Restablecer &amp;ventana</translation>
    </message>
    <message>
        <source>S&amp;election</source>
        <translation>Selecció&amp;n</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>B&amp;uscar</translation>
    </message>
    <message>
        <source>Packages are being installed, updated or removed.
That goes on to its end, and the program ends behind it.</source>
        <translation>Se están instalando, actualizando o eliminando paquetes.
Eso continúa hasta el final, y el programa termina después.</translation>
    </message>
    <message>
        <source>&amp;Open Package Files...</source>
        <translation>&amp;Abrir archivos de paquetes...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Shows packages of .rpm files and of https addresses in the table, marked for installation</source>
        <translation>Muestra en la tabla paquetes de archivos .rpm y de direcciones https, marcados para instalar</translation>
    </message>
    <message>
        <source>The package library in use can&apos;t open package files here</source>
        <translation>La biblioteca de paquetes en uso no puede abrir aquí archivos de paquetes</translation>
    </message>
    <message>
        <source>The search was stopped: only what it had found by then is shown</source>
        <translation>La búsqueda se detuvo: solo se muestra lo que había encontrado hasta entonces</translation>
    </message>
    <message>
        <source>An answer is waited for.</source>
        <translation>Se espera una respuesta.</translation>
    </message>
    <message>
        <source>All actions have been applied.</source>
        <translation>Se han aplicado todas las acciones.</translation>
    </message>
    <message>
        <source>Not all actions have been applied.</source>
        <translation>No se han aplicado todas las acciones.</translation>
    </message>
    <message>
        <source>Open Log With Each &amp;Apply</source>
        <translation>Abrir el registro en cada &amp;aplicación</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Shows what was installed, updated and removed, and takes it back</source>
        <translation>Muestra lo que se instaló, actualizó y eliminó, y lo deshace</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell the history</source>
        <translation>El guion auxiliar en uso es demasiado antiguo para contar el historial</translation>
    </message>
    <message>
        <source>A&amp;dvisories</source>
        <translation>Avi&amp;sos</translation>
    </message>
    <message>
        <source>Shows what the repositories advise about installed packages, security first of all</source>
        <translation>Muestra lo que los repositorios aconsejan sobre paquetes instalados, ante todo en seguridad</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell of advisories</source>
        <translation>El guion auxiliar en uso es demasiado antiguo para dar avisos</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>View Security Updates</source>
        <translation>Ver actualizaciones de seguridad</translation>
    </message>
    <message>
        <source>Set Update of &amp;Security Fixes</source>
        <translation>Marcar las actualizaciones de se&amp;guridad</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Shift+U</translation>
    </message>
    <message>
        <source>Set Update of Security Fixes</source>
        <translation>Marcar las actualizaciones de seguridad</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Los metadatos de los repositorios en uso no contienen avisos.</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which have a security update to Update.
Does not Apply Actions automatically.</source>
        <translation>Asigna la acción Actualizar a todos los paquetes que tienen una actualización de seguridad.
No aplica las acciones automáticamente.</translation>
    </message>
    <message>
        <source>Res&amp;tarts</source>
        <translation>Reini&amp;cios</translation>
    </message>
    <message>
        <source>Shows what still works with files that have been replaced, and restarts services</source>
        <translation>Muestra lo que aún trabaja con archivos sustituidos y reinicia servicios</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell what is to be restarted</source>
        <translation>El script auxiliar en uso es demasiado antiguo para decir qué hay que reiniciar</translation>
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
        <translation>Abrir archivos de paquetes</translation>
    </message>
    <message>
        <source>&amp;Files (.rpm) and addresses (https), one a line:</source>
        <translation>A&amp;rchivos (.rpm) y direcciones (https), uno por línea:</translation>
    </message>
    <message>
        <source>Package files</source>
        <translation>Archivos de paquetes</translation>
    </message>
    <message>
        <source>Paths of .rpm files and https addresses, one a line</source>
        <translation>Rutas de archivos .rpm y direcciones https, una por línea</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Examinar...</translation>
    </message>
    <message>
        <source>Choose .rpm files of this machine</source>
        <translation>Elegir archivos .rpm de este equipo</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Show the packages in the table, marked for installation</source>
        <translation>Mostrar los paquetes en la tabla, marcados para instalar</translation>
    </message>
    <message>
        <source>Package files (*.rpm);;All files (*)</source>
        <translation>Archivos de paquetes (*.rpm);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>This is no readable .rpm file and no https address: %1</source>
        <translation>Esto no es un archivo .rpm legible ni una dirección https: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PackageTable::ActionContextMenu</name>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation>&amp;Sin acción</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>VEM Package Description</source>
        <translation>VEM - Descripción del paquete</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Go back to the package described before</source>
        <translation>Volver al paquete descrito antes</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Area</name>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Repositorio</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Change Log</source>
        <translation>Registro de cambios</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (must load extra data)</source>
        <translation>%1 (requiere cargar datos adicionales)</translation>
    </message>
    <message>
        <source>%1 %2 File List</source>
        <translation>Lista de archivos de %1 %2</translation>
    </message>
    <message>
        <source>%1 %2 Change Log</source>
        <translation>Registro de cambios de %1 %2</translation>
    </message>
    <message>
        <source>Required Groups</source>
        <translation>Grupos requeridos</translation>
    </message>
    <message>
        <source>Default MetaPkgs</source>
        <translation>Metapaquetes predeterminados</translation>
    </message>
    <message>
        <source>Optional MetaPkgs</source>
        <translation>Metapaquetes opcionales</translation>
    </message>
    <message>
        <source>Mandatory Packages</source>
        <translation>Paquetes obligatorios</translation>
    </message>
    <message>
        <source>Default Packages</source>
        <translation>Paquetes predeterminados</translation>
    </message>
    <message>
        <source>Optional Packages</source>
        <translation>Paquetes opcionales</translation>
    </message>
    <message>
        <source>Conditional Packages</source>
        <translation>Paquetes condicionales</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>Fecha de compilación</translation>
    </message>
    <message>
        <source>Build Host</source>
        <translation>Equipo de compilación</translation>
    </message>
    <message>
        <source>Install Time</source>
        <translation>Fecha de instalación</translation>
    </message>
    <message>
        <source>Binary RPM</source>
        <translation>RPM binario</translation>
    </message>
    <message>
        <source>Source RPM</source>
        <translation>RPM fuente</translation>
    </message>
    <message>
        <source>License</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Packager</source>
        <translation>Empaquetador</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Relocations</source>
        <translation>Reubicaciones</translation>
    </message>
    <message>
        <source>Provides</source>
        <translation>Proporciona</translation>
    </message>
    <message>
        <source>Requires</source>
        <translation>Requiere</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflictos</translation>
    </message>
    <message>
        <source>Obsoletes</source>
        <translation>Reemplaza</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::RepoDialog</name>
    <message>
        <source>VEM Repository Description</source>
        <translation>VEM - Descripción del repositorio</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Explorar repositorio</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>Abrir la primera URL indicada para el repositorio seleccionado en un navegador web externo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL de lista de espejos</translation>
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
        <translation>Requerido por</translation>
    </message>
    <message>
        <source>Which packages require this one</source>
        <translation>Qué paquetes requieren este</translation>
    </message>
    <message>
        <source>Recommended By</source>
        <translation>Recomendado por</translation>
    </message>
    <message>
        <source>Which packages recommend this one</source>
        <translation>Qué paquetes recomiendan este</translation>
    </message>
    <message>
        <source>Provides What It Requires</source>
        <translation>Proporciona lo que requiere</translation>
    </message>
    <message>
        <source>Which packages have what this one requires</source>
        <translation>Qué paquetes tienen lo que este requiere</translation>
    </message>
    <message>
        <source>Why Installed</source>
        <translation>Por qué está instalado</translation>
    </message>
    <message>
        <source>Who wanted this package, and which transaction installed it</source>
        <translation>Quién quiso este paquete y qué transacción lo instaló</translation>
    </message>
    <message>
        <source>Advisories</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Which advisories name this package, and whether it has what they advise</source>
        <translation>Qué avisos nombran este paquete y si tiene lo que aconsejan</translation>
    </message>
    <message>
        <source>Other Versions</source>
        <translation>Otras versiones</translation>
    </message>
    <message>
        <source>All versions that are installed or that a repository has</source>
        <translation>Todas las versiones instaladas o que tiene un repositorio</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>These are the first %L1 of %L2.</source>
        <translation>Estos son los primeros %L1 de %L2.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todos</translation>
    </message>
</context>
<context>
    <name>PackageTable::ExpressionEdit</name>
    <message>
        <source>Match Case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>Vaciar la expresión</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Whether capital and small letters differ (%1)</source>
        <translation>Si se distinguen mayúsculas y minúsculas (%1)</translation>
    </message>
    <message>
        <source>%1, at letter %2 of the expression: %3</source>
        <extracomment>%1 is what the system&apos;s library says is wrong, %2 the number of the letter, from 1, %3 the letter</extracomment>
        <translation>%1, en el carácter %2 de la expresión: %3</translation>
    </message>
    <message>
        <source>Not Valid</source>
        <translation>No válida</translation>
    </message>
</context>
<context>
    <name>PackageTable::Header</name>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
</context>
<context>
    <name>PackageTable::Model</name>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Action to be performed on the package, if any: Update, Install, Remove</source>
        <translation>Acción que se realizará con el paquete, si la hay: actualizar, instalar, eliminar</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation>Indica si el paquete está instalado o no y, si lo está, si está actualizado o no</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation>Indica si se trata de un paquete ordinario, una suite de paquetes o un grupo de paquetes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nombre del paquete</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation>Versión y lanzamiento del paquete con el formato versión-lanzamiento;
si el epoch no es cero, se incluye con el formato epoch:versión-lanzamiento</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Repositorio</translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation>Repositorio en el que está disponible la versión más reciente del paquete</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation>Arquitectura a la que se destina el paquete, o &quot;noarch&quot; si sirve para cualquiera</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation>Tamaño del paquete</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>Fecha de compilación</translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation>Fecha y hora en que se creó el paquete</translation>
    </message>
    <message>
        <source>Update package</source>
        <translation>Actualizar el paquete</translation>
    </message>
    <message>
        <source>Install package</source>
        <translation>Instalar el paquete</translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation>Eliminar el paquete</translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation>El paquete está disponible para actualizar una versión desactualizada</translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation>El paquete está disponible para instalar</translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation>El paquete está instalado y actualizado</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Suite de paquetes</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Grupo de paquetes</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Paquete ordinario</translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation>Disponible: %1
</translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation>Instalado: %1
</translation>
    </message>
    <message>
        <source>
Installed in more than one version: %1</source>
        <translation>
Instalado en más de una versión: %1</translation>
    </message>
    <message>
        <source>Package is available to replace %1</source>
        <translation>El paquete está disponible para reemplazar a %1</translation>
    </message>
    <message>
        <source>Replaces: %1
</source>
        <translation>Reemplaza: %1
</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>What the package is, in one line</source>
        <translation>Qué es el paquete, en una línea</translation>
    </message>
    <message>
        <source>Installed Version</source>
        <translation>Versión instalada</translation>
    </message>
    <message>
        <source>Version and release that is installed, if any</source>
        <translation>Versión y publicación instaladas, si las hay</translation>
    </message>
    <message>
        <source>Installed Size</source>
        <translation>Tamaño instalado</translation>
    </message>
    <message>
        <source>What the package takes on the disk</source>
        <translation>Lo que ocupa el paquete en el disco</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Kind of software, as the package states it</source>
        <translation>Tipo de software, según indica el paquete</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Terms under which the package may be used and passed on</source>
        <translation>Condiciones de uso y distribución del paquete</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Who has published the package</source>
        <translation>Quién ha publicado el paquete</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Why the package is installed: asked for by the user, by a group, or as a dependency</source>
        <translation>Por qué está instalado el paquete: a petición del usuario, por un grupo o como dependencia</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Advisories that the update carries out, and how grave the gravest one is</source>
        <translation>Avisos que aplica la actualización, y la gravedad del más grave</translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation>&amp;Describir</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Explorar repositorio</translation>
    </message>
</context>
<context>
    <name>PackageTable::SelectionActions</name>
    <message>
        <source>Install/Update of Selected: %1</source>
        <extracomment>%1 is a number of packages</extracomment>
        <translation>Instalar/actualizar lo seleccionado: %1</translation>
    </message>
    <message>
        <source>Remove Selected: %1</source>
        <translation>Eliminar lo seleccionado: %1</translation>
    </message>
    <message>
        <source>No Action for Selected: %1</source>
        <translation>Ninguna acción para lo seleccionado: %1</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>&amp;Describir</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Explorar repositorio</translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Packages</source>
        <translation>Paquetes</translation>
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
        <translation>No se puede leer lo que se dice de otros paquetes</translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VEM Authentication</source>
        <translation>VEM - Autenticación</translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation>Algunos repositorios configurados requieren autenticación</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL de lista de espejos</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Nombre de autenticación de un repositorio que usa el método de autenticación Buffet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Contraseña de autenticación de un repositorio que usa el método de autenticación Buffet</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation>Deshabilitar en la sesión</translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation>Omitir todos</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Aplicar a todos</translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation>Aplicar a todos los de este servidor</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>RepoBrowse</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation>La configuración del repositorio no tiene ninguna URL</translation>
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
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation>(Sí)</translation>
    </message>
    <message>
        <source>(No)</source>
        <translation>(No)</translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation>No se ha indicado el identificador</translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation>No se ha indicado ninguna URL ni URL de lista de espejos</translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation>El archivo no está en ningún directorio de reposdir</translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation>El archivo no tiene el sufijo .repo</translation>
    </message>
    <message>
        <source>No Buffet Authentication Name specified</source>
        <translation>No se ha indicado el nombre de autenticación Buffet</translation>
    </message>
    <message>
        <source>No Buffet Authentication Password specified</source>
        <translation>No se ha indicado la contraseña de autenticación Buffet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Identificador único del repositorio</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Descripción del repositorio</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation>Lista de URL del repositorio.
Si se indica más de una, todas deben ser espejos idénticos
y proporcionarán redundancia si alguna no está accesible.</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL de lista de espejos</translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation>URL de un archivo que contiene una lista de URL del repositorio.</translation>
    </message>
    <message>
        <source>Buffet Authentication</source>
        <translation>Autenticación Buffet</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Nombre de autenticación de un repositorio que usa el método de autenticación Buffet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Contraseña de autenticación de un repositorio que usa el método de autenticación Buffet</translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation>Opciones del repositorio</translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation>Cualquier otra opción de yum para este repositorio.  Consulte yum.conf(5)</translation>
    </message>
    <message>
        <source>Other Options:</source>
        <translation>Otras opciones:</translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation>Indica si el repositorio está habilitado para su uso</translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation>Indica si se comprueban las firmas GPG de los paquetes del repositorio para garantizar su autenticidad</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>Check GPG Keys</source>
        <translation>Comprobar claves GPG</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation>Archivo de configuración (expertos)</translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation>Nombre del archivo de configuración de yum en el que se guarda la configuración de este repositorio.
Si se deja en blanco, se usa el identificador del repositorio</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation>Clave de ordenación numérica que determina la posición de la configuración de este repositorio
en un archivo que contiene varias configuraciones</translation>
    </message>
    <message>
        <source>Sort Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Line %1 of Other Options would begin another section</source>
        <translation>La línea %1 de las otras opciones empezaría otra sección</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is indented but continues no option</source>
        <translation>La línea %1 de las otras opciones tiene sangría, pero no continúa ninguna opción</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is no option: it lacks &quot;=&quot;</source>
        <translation>La línea %1 de las otras opciones no es una opción: le falta «=»</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VEM Repository Configuration</source>
        <translation>VEM - Configuración del repositorio</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation>Deshacer los cambios de la configuración de este repositorio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation>Deshacer los cambios de la configuración de este repositorio y cerrar la ventana</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Aplicar los cambios de todas las configuraciones de repositorios y cerrar la ventana</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Explorar repositorio</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VEM Repository Configuration Editor</source>
        <translation>VEM - Editor de configuración de repositorios</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Explorar repositorio</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>Abrir la primera URL indicada para el repositorio seleccionado en un navegador web externo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation>Editar la configuración del repositorio seleccionado</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation>Crear desde cero una nueva configuración de repositorio</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation>Crear una nueva configuración de repositorio a partir del repositorio seleccionado</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation>Eliminar la configuración del repositorio seleccionado</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation>Deshacer los cambios de todas las configuraciones de repositorios hechos desde la última vez que se aplicaron o desde que se abrió el diálogo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation>Deshacer los cambios de todas las configuraciones de repositorios hechos desde la última vez que se aplicaron o desde que se abrió el diálogo, y cerrar la ventana</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation>Aplicar los cambios de todas las configuraciones de repositorios sin cerrar la ventana</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Aplicar los cambios de todas las configuraciones de repositorios y cerrar la ventana</translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation>Un repositorio no tiene identificador</translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation>Dos o más repositorios tienen el identificador %1</translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation>Cambios de configuración sin aplicar</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>Sess</source>
        <translation>Ses.</translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation>Indica si el repositorio se usa durante esta sesión.
Prevalece sobre la opción permanente Habilitado de la configuración del repositorio.</translation>
    </message>
    <message>
        <source>Perm</source>
        <translation>Perm.</translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation>Indica si el repositorio está configurado como habilitado de forma predeterminada.
Se puede cambiar para una sesión concreta.</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Identificador único del repositorio</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Descripción del repositorio</translation>
    </message>
    <message>
        <source>(new)</source>
        <translation>(nuevo)</translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation>El repositorio está habilitado en esta sesión</translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation>El repositorio no está habilitado en esta sesión</translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation>El repositorio está configurado como habilitado</translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation>El repositorio no está configurado como habilitado</translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Repositories</source>
        <translation>Repositorios</translation>
    </message>
</context>
<context>
    <name>Restarts::FilesModel</name>
    <message>
        <source>Removed</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Sustituido</translation>
    </message>
    <message>
        <source>Path of the file</source>
        <translation>Ruta del archivo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Package that the file belongs to now</source>
        <translation>Paquete al que pertenece ahora el archivo</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquete</translation>
    </message>
    <message>
        <source>Whether the file that the process uses is there in another version, or gone</source>
        <translation>Si el archivo que usa el proceso está en otra versión o ya no está</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>Restarts::Model</name>
    <message>
        <source>Unit of systemd that the process belongs to</source>
        <translation>Unidad de systemd a la que pertenece el proceso</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Command that runs</source>
        <translation>Orden que se ejecuta</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Number of the process</source>
        <translation>Número del proceso</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Proceso</translation>
    </message>
    <message>
        <source>Whose process it is</source>
        <translation>De quién es el proceso</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>When the process began</source>
        <translation>Cuándo empezó el proceso</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Iniciado</translation>
    </message>
    <message>
        <source>How many files it uses that have been replaced</source>
        <translation>Cuántos archivos sustituidos usa</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
</context>
<context>
    <name>Restarts::Reader</name>
    <message>
        <source>Unable to find out what is to be restarted</source>
        <translation>No se puede averiguar qué hay que reiniciar</translation>
    </message>
    <message>
        <source>Unable to restart services</source>
        <translation>No se pueden reiniciar servicios</translation>
    </message>
</context>
<context>
    <name>Restarts::Window</name>
    <message>
        <source>Restarts</source>
        <translation>Reinicios</translation>
    </message>
    <message>
        <source>The system is to be started anew. Since its start on %1 have been installed:</source>
        <translation>Hay que reiniciar el sistema. Desde su inicio el %1 se han instalado:</translation>
    </message>
    <message>
        <source>The system need not be started anew.</source>
        <translation>No hace falta reiniciar el sistema.</translation>
    </message>
    <message>
        <source>No process uses files that have been replaced.</source>
        <translation>Ningún proceso usa archivos sustituidos.</translation>
    </message>
    <message>
        <source>Processes of which nothing could be told for lack of rights: %1</source>
        <translation>Procesos de los que no se pudo saber nada por falta de permisos: %1</translation>
    </message>
    <message>
        <source>The helper script in use is too old to restart services</source>
        <translation>El script auxiliar en uso es demasiado antiguo para reiniciar servicios</translation>
    </message>
    <message>
        <source>Restarts the services of these processes, as far as they can be restarted</source>
        <translation>Reinicia los servicios de estos procesos, en lo posible</translation>
    </message>
    <message>
        <source>These services are restarted, one after the other:</source>
        <translation>Se reinician estos servicios, uno tras otro:</translation>
    </message>
    <message>
        <source>What they do is interrupted for that time.</source>
        <translation>Lo que hacen queda interrumpido mientras tanto.</translation>
    </message>
    <message>
        <source>Restart Services</source>
        <translation>Reiniciar servicios</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Consejo</translation>
    </message>
    <message>
        <source>Whether the system is to be started anew</source>
        <translation>Si hay que reiniciar el sistema</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>Processes that use files which have been replaced</source>
        <translation>Procesos que usan archivos sustituidos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Replaced files that the chosen process uses</source>
        <translation>Archivos sustituidos que usa el proceso elegido</translation>
    </message>
    <message>
        <source>&amp;Restart These Services</source>
        <translation>&amp;Reiniciar estos servicios</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>&amp;Mirar de nuevo</translation>
    </message>
    <message>
        <source>Find out anew what is to be restarted</source>
        <translation>Averiguar de nuevo qué hay que reiniciar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close the restarts</source>
        <translation>Cerrar los reinicios</translation>
    </message>
</context>
<context>
    <name>ScrollableConfirmDialog</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>&amp;Transaction</source>
        <translation>&amp;Transacción</translation>
    </message>
</context>
<context>
    <name>ScrollableErrorDialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 de %2 a la vista</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 seleccionados</translation>
    </message>
    <message>
        <source>1 install</source>
        <translation>1 instalación</translation>
    </message>
    <message>
        <source>%1 installs</source>
        <translation>%1 instalaciones</translation>
    </message>
    <message>
        <source>1 update</source>
        <translation>1 actualización</translation>
    </message>
    <message>
        <source>%1 updates</source>
        <translation>%1 actualizaciones</translation>
    </message>
    <message>
        <source>1 removal</source>
        <translation>1 eliminación</translation>
    </message>
    <message>
        <source>%1 removals</source>
        <translation>%1 eliminaciones</translation>
    </message>
    <message>
        <source>%1 marked: %2</source>
        <extracomment>%1 is a number, %2 something like &quot;2 installs, 1 removal&quot;</extracomment>
        <translation>%1 marcados: %2</translation>
    </message>
    <message>
        <source>%1; %2 to download</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1; %2 por descargar</translation>
    </message>
    <message>
        <source>Looking only</source>
        <translation>Solo consulta</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>Tabla incompleta</translation>
    </message>
    <message>
        <source>%1, %2 more on the disk</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1, %2 más en el disco</translation>
    </message>
    <message>
        <source>%1, %2 less on the disk</source>
        <translation>%1, %2 menos en el disco</translation>
    </message>
    <message>
        <source>Repositories read just now</source>
        <translation>Repositorios leídos ahora mismo</translation>
    </message>
    <message>
        <source>Repositories read 1 minute ago</source>
        <translation>Repositorios leídos hace 1 minuto</translation>
    </message>
    <message>
        <source>Repositories read %1 minutes ago</source>
        <translation>Repositorios leídos hace %1 minutos</translation>
    </message>
    <message>
        <source>Repositories read 1 hour ago</source>
        <translation>Repositorios leídos hace 1 hora</translation>
    </message>
    <message>
        <source>Repositories read %1 hours ago</source>
        <translation>Repositorios leídos hace %1 horas</translation>
    </message>
    <message>
        <source>Repositories read 1 day ago</source>
        <translation>Repositorios leídos hace 1 día</translation>
    </message>
    <message>
        <source>Repositories read %1 days ago</source>
        <translation>Repositorios leídos hace %1 días</translation>
    </message>
</context>
<context>
    <name>StopButton</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Nothing is going on that could be stopped</source>
        <translation>No hay nada en curso que se pueda detener</translation>
    </message>
    <message>
        <source>Stops what is going on; nothing has been changed yet (Escape)</source>
        <translation>Detiene lo que está en curso; aún no se ha cambiado nada (Escape)</translation>
    </message>
    <message>
        <source>It is being stopped</source>
        <translation>Se está deteniendo</translation>
    </message>
    <message>
        <source>Packages are being changed: what has begun comes to its end</source>
        <translation>Se están cambiando paquetes: lo que ha empezado llega a su fin</translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>YumConfIO</name>
    <message>
        <source>; errno = %1 (%2).</source>
        <translation>; errno = %1 (%2).</translation>
    </message>
    <message>
        <source>VEM Repository Editor Error</source>
        <translation>VEM - Error del editor de repositorios</translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation>Editor de repositorios</translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation>No se pudo leer el archivo de configuración de yum %1</translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation>No se pudo consultar (stat) el archivo de configuración de repositorios %1</translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation>No se pudo leer el archivo de configuración de repositorios %1</translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation>Nombre de sección incorrecto en la línea: %1</translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation>Error al leer el archivo de configuración de repositorios %1</translation>
    </message>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation>Un repositorio no tiene identificador.  Se eliminará.</translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation>Dos o más repositorios tienen el mismo identificador: %1.  Solo se aplicará un repositorio por cada identificador.</translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation>  ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation>No se pudo escribir el archivo de configuración de repositorios %1</translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation>No se pudo eliminar (unlink) el archivo de configuración de repositorios %1</translation>
    </message>
    <message>
        <source>subscription-manager generates these files and will write them anew, without the changes made here: %1.  Its own command, &quot;subscription-manager repo-override&quot;, makes lasting ones.</source>
        <translation>subscription-manager genera estos archivos y volverá a escribirlos sin los cambios hechos aquí: %1.  Los cambios duraderos se hacen con su propia orden, «subscription-manager repo-override».</translation>
    </message>
    <message>
        <source>%1 is not a regular file.  It is neither read nor changed.</source>
        <translation>%1 no es un archivo normal.  No se lee ni se modifica.</translation>
    </message>
    <message>
        <source>The file %1 has not been read, or not to its end.  Nothing is written, so that nothing in it is lost.</source>
        <translation>El archivo %1 no se ha leído, o no hasta el final.  No se escribe nada, para que no se pierda nada de él.</translation>
    </message>
    <message>
        <source>
The file is %1.</source>
        <translation>
El archivo es %1.</translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Unable to release yum lock</source>
        <translation>No se pudo liberar el bloqueo de yum</translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation>No se pudo inicializar</translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation>Disponible para actualizar</translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation>Disponible para instalar</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Instalado</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Suite de paquetes</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Grupo de paquetes</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Paquete ordinario</translation>
    </message>
    <message>
        <source>Applying</source>
        <translation>Aplicando</translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation>Comprobación de dependencias: progreso total</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparando</translation>
    </message>
    <message>
        <source>Error applying changes</source>
        <translation>Error al aplicar los cambios</translation>
    </message>
    <message>
        <source>Error applying changes: Exiting on Broken Pipe</source>
        <translation>Error al aplicar los cambios: tubería rota, se abandona</translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation>No se pudo añadir el paquete %1 a la lista de eliminaciones</translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation>No se pudo añadir el paquete %1 a la lista de instalaciones</translation>
    </message>
    <message>
        <source>Unable to find installed version for package update %1</source>
        <translation>No se encontró la versión instalada para actualizar el paquete %1</translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation>No se pudo añadir el paquete nuevo al par del paquete actualizado %1</translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation>No se pudo añadir el paquete antiguo al par del paquete actualizado %1</translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation>No se pudo añadir el paquete %1 a la lista de actualizaciones</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation>Aplicando: confirmado</translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation>No se aplica: cancelado</translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation>Ejecución de la transacción: progreso total</translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation>Limpiando cabeceras</translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation>Limpiando paquetes</translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation>Limpiando metadatos XML</translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation>Limpiando datos serializados</translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation>Limpiando todo</translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation>Inicialización</translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation>Inicialización: progreso total</translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation>No se pudo obtener el bloqueo de yum</translation>
    </message>
    <message>
        <source>contents</source>
        <translation>contenido</translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>No hay repositorios configurados.
En el menú Repositorios, use Editar configuración para configurarlos.</translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>No hay repositorios habilitados.
En el menú Repositorios, use Editar configuración para configurarlos.</translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation>Leyendo repositorios</translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation>Recopilando los paquetes actualizables</translation>
    </message>
    <message>
        <source>Unable to setup transaction</source>
        <translation>No se pudo preparar la transacción</translation>
    </message>
    <message>
        <source>Unable to collect updatable packages</source>
        <translation>No se pudieron recopilar los paquetes actualizables</translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation>Recopilando los paquetes instalados y disponibles</translation>
    </message>
    <message>
        <source>Unable to collect installed and available packages</source>
        <translation>No se pudieron recopilar los paquetes instalados y disponibles</translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation>Recopilando los grupos</translation>
    </message>
    <message>
        <source>Unable to collect groups</source>
        <translation>No se pudieron recopilar los grupos</translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation>no se pudo preparar el repositorio %1:
%2</translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation>Error interno: no se encontró yumIO.collectAll.%1</translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation>Error interno: fecha no reconocida: %1</translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation>Error interno: tamaño de paquete no reconocido: %1</translation>
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
        <translation>Error interno: versión de yum no reconocida: %1</translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation>Recopilando las listas de archivos</translation>
    </message>
    <message>
        <source>file lists</source>
        <translation>listas de archivos</translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation>Carga de las listas de archivos: progreso total</translation>
    </message>
    <message>
        <source>Unable to collect file lists</source>
        <translation>No se pudieron recopilar las listas de archivos</translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation>Recopilando datos varios</translation>
    </message>
    <message>
        <source>miscellaneous data</source>
        <translation>datos varios</translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation>Carga de datos varios: progreso total</translation>
    </message>
    <message>
        <source>Unable to collect miscellaneous data</source>
        <translation>No se pudieron recopilar los datos varios</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation>Error interno: falló la ejecución de yumIO.%1</translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation>Error interno: no se encuentra rpm.%1</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation>Error interno: no se encuentra prco.%1 del paquete</translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation>el paquete es opcional</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation>El paquete %1 pertenece al grupo %2, marcado con la acción %3,
por lo que le correspondería la acción %4,
pero se marcó individualmente con la acción %5.
¿Cómo desea continuar?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation>El paquete %1 pertenece al grupo %2, marcado con la acción %3,
por lo que le correspondería la acción %4,
pero usted resolvió un conflicto anterior marcándolo con la acción %5.
¿Cómo desea continuar?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation>El paquete %1 pertenece al grupo %2, marcado con la acción %3,
por lo que le correspondería la acción %4,
pero también pertenece al grupo %5 y por ello se marcó con la acción %6.
¿Cómo desea continuar?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation>Resolución manual del conflicto: se marca el paquete %1 con la acción %3</translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation>Grupo %1: se marca el paquete %2 con la acción %3</translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation>Grupo %1: el paquete %2 ya estaba marcado con la acción %3</translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation>Grupo %1: no se marca el paquete %2 con la acción %3, porque %4</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation>Error interno: no se puede evaluar groupInfo.%1</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation>Error interno: no se puede evaluar groupInfo.%1[%2]</translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation>Error interno: no se puede evaluar el grupo %1.%2</translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation>Tamaño total de la descarga: %1
</translation>
    </message>
    <message>
        <source>Internal error: %1 not found
</source>
        <translation>Error interno: no se encontró %1
</translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation>Transacción que se realizará:
</translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation>Para resolver las dependencias, además:
</translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation>Otras transacciones:
</translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation>Reemplazar</translation>
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
        <translation>	%1: %2 por %3
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
        <translation>Descargando la lista de espejos del repositorio (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list for %2</source>
        <translation>Descargando la lista de espejos del repositorio %2 (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd</source>
        <translation>Descargando el repomd del repositorio (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd for %2</source>
        <translation>Descargando el repomd del repositorio %2 (%1)</translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation>Descargando %1 del repositorio</translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation>Descargando %1 del repositorio %2</translation>
    </message>
    <message>
        <source>Converting repository %1</source>
        <translation>Convirtiendo %1 del repositorio</translation>
    </message>
    <message>
        <source>Converting repository %1 for %2</source>
        <translation>Convirtiendo %1 del repositorio %2</translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation>Leyendo %1 del repositorio</translation>
    </message>
    <message>
        <source>Reading repository %1 for %2</source>
        <translation>Leyendo %1 del repositorio %2</translation>
    </message>
    <message>
        <source>VEM Yum Error</source>
        <translation>VEM - Error de yum</translation>
    </message>
    <message>
        <source>VEM Yum Warning</source>
        <translation>VEM - Advertencia de yum</translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation>Resolviendo dependencias</translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation>Error interno: TSINFO inesperado: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation>Error interno: TSINFO menciona un paquete desconocido: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation>Error interno: TSINFO indica que se va a instalar o actualizar un paquete que ya parece actualizado: %1</translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation>Terminando la reconstrucción de RPM a partir de deltas</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Descargando %1</translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation>Descargando la cabecera de %1</translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation>Preparando la ejecución de la transacción</translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation>Preparando la prueba de la transacción</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Actualizando %1</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Instalando %1</translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation>Completando la actualización de: %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Eliminando %1</translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation>Prueba de la transacción</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation>Error interno: YumIO::tsCallback what=%1 no reconocido; se omite</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation>Error interno: YumIO::tsEvent action=%1 no reconocido; se omite</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation>Dependencia eliminada</translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation>Dependencia instalada</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation>Dependencia actualizada</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>Reemplazado</translation>
    </message>
    <message>
        <source>VEM Looking Only</source>
        <translation>VEM - Solo consulta</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Loading build hosts: Total Progress</source>
        <translation>Carga de los equipos de compilación: progreso total</translation>
    </message>
    <message>
        <source>The transaction goes on; the program ends when it has come to its end.</source>
        <translation>La transacción continúa; el programa terminará cuando esta haya finalizado.</translation>
    </message>
    <message>
        <source>Unable to see whether a transaction was cut off</source>
        <translation>No se pudo determinar si se interrumpió una transacción</translation>
    </message>
    <message>
        <source>Key %1: OK</source>
        <translation>Clave %1: confirmada</translation>
    </message>
    <message>
        <source>Key %1: Canceled</source>
        <translation>Clave %1: cancelada</translation>
    </message>
    <message>
        <source>Enabling module streams:
</source>
        <translation>Se habilitan flujos de módulos:
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
        <translation>No se puede leer lo que muestra una columna</translation>
    </message>
    <message>
        <source>Unable to read the changes</source>
        <translation>No se pueden leer los cambios</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Reading what was fetched before</source>
        <translation>Leyendo lo que se obtuvo antes</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1, %2 left</source>
        <translation>%1, quedan %2</translation>
    </message>
    <message>
        <source>script of %1</source>
        <translation>script de %1</translation>
    </message>
    <message>
        <source>Unable to open package files</source>
        <translation>No se pueden abrir los archivos de paquetes</translation>
    </message>
    <message>
        <source>These package files can&apos;t be used:</source>
        <translation>Estos archivos de paquetes no se pueden usar:</translation>
    </message>
</context>
<context>
    <name>YumIOCapturers</name>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation>No se pudo abrir la tubería para capturar la salida de la transacción rpm</translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation>No se pudo duplicar (dup2) la tubería para capturar la salida de la transacción rpm</translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation>No se pudo restaurar stderr con dup2</translation>
    </message>
</context>
</TS>
